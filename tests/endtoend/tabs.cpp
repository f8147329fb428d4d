#include "endtoend/tabs.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>

#include "endtoend/automation.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

// One page of memory in the process of the window.
class FarMemory {
  public:
    explicit FarMemory(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_.Reset(
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id));
        memory_ = VirtualAllocEx(process_.Get(), nullptr, Size, MEM_COMMIT, PAGE_READWRITE);
        if (!memory_) throw Failed("no memory in the other process");
    }
    ~FarMemory() { VirtualFreeEx(process_.Get(), memory_, 0, MEM_RELEASE); }
    FarMemory(const FarMemory&) = delete;
    FarMemory& operator=(const FarMemory&) = delete;

    char* At(std::size_t offset) const { return static_cast<char*>(memory_) + offset; }

    template <typename T>
    void Write(const T& value) const {
        if (!WriteProcessMemory(process_.Get(), memory_, &value, sizeof value, nullptr)) {
            throw Failed("cannot write into the other process");
        }
    }
    void Read(std::size_t offset, void* into, std::size_t size) const {
        if (!ReadProcessMemory(process_.Get(), At(offset), into, size, nullptr)) {
            throw Failed("cannot read from the other process");
        }
    }

  private:
    static constexpr std::size_t Size = 4096;
    platform::win32::KernelHandle process_;
    void* memory_ = nullptr;
};

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

}  // namespace endtoend
