#include "platform/win32/clipboard.h"

#include <windows.h>

#include <cstring>

#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

struct GlobalMemoryTraits {
    using Type = HGLOBAL;
    static Type None() { return nullptr; }
    static bool Close(Type memory) { return GlobalFree(memory) == nullptr; }
};
using GlobalMemory = Owned<GlobalMemoryTraits>;

class OpenedClipboard {
  public:
    OpenedClipboard() : open_(OpenClipboard(GetActiveWindow()) != FALSE) {}
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return open_; }

  private:
    bool open_;
};

GlobalMemory CopyOf(const std::wstring& text) {
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, size));
    void* content = memory ? GlobalLock(memory.Get()) : nullptr;
    if (!content) return {};
    std::memcpy(content, text.c_str(), size);
    GlobalUnlock(memory.Get());
    return memory;
}

}  // namespace

// What the clipboard has taken belongs to it.
bool Clipboard::SetText(std::string_view text) {
    GlobalMemory memory = CopyOf(ToWide(text));
    if (!memory) return false;
    const OpenedClipboard opened;
    if (!opened || !EmptyClipboard()) return false;
    if (!SetClipboardData(CF_UNICODETEXT, memory.Get())) return false;
    memory.Release();
    return true;
}

}  // namespace platform::win32
