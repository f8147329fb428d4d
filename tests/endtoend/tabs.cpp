#include "endtoend/tabs.h"

#include <windows.h>

#include <commctrl.h>

#include "endtoend/automation.h"
#include "endtoend/farmemory.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

constexpr int CaptionLimit = 256;

}  // namespace

std::vector<std::string> Tabs::Captions() const {
    const FarMemory memory(window_);
    std::vector<std::string> captions;
    const LRESULT count = Send(window_, TCM_GETITEMCOUNT);
    for (LRESULT tab = 0; tab < count; ++tab) {
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = reinterpret_cast<wchar_t*>(memory.At(sizeof item));
        item.cchTextMax = CaptionLimit;
        memory.Write(item);
        Send(window_, TCM_GETITEMW, static_cast<WPARAM>(tab),
             reinterpret_cast<LPARAM>(memory.At(0)));
        wchar_t text[CaptionLimit] = {};
        memory.Read(sizeof item, text, sizeof text);
        captions.push_back(platform::win32::FromWide(text));
    }
    return captions;
}

RECT Tabs::Area(int tab) const {
    const FarMemory memory(window_);
    memory.Write(RECT{});
    if (!Send(window_, TCM_GETITEMRECT, static_cast<WPARAM>(tab),
              reinterpret_cast<LPARAM>(memory.At(0)))) {
        throw Failed("there is no tab " + std::to_string(tab));
    }
    RECT area = {};
    memory.Read(0, &area, sizeof area);
    return area;
}

int Tabs::Picture(int tab) const {
    if (!Send(window_, TCM_GETIMAGELIST)) return -1;
    const FarMemory memory(window_);
    TCITEMW item = {};
    item.mask = TCIF_IMAGE;
    memory.Write(item);
    Send(window_, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(memory.At(0)));
    memory.Read(0, &item, sizeof item);
    return item.iImage;
}

}  // namespace endtoend
