#pragma once

#include <cstdint>
#include <string>

namespace platform {

// A font as its properties name it; the size is in points.
struct TipFont {
    std::string name;
    double size = 8;
    std::int32_t weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
};

// One tool of a tooltip window, as its record tells it. The rectangle is left, top, right and
// bottom in the window.
struct TipTool {
    // The form of the record that every comctl32 knows: up to the text's pointer.
    static constexpr std::uint32_t RecordSize = 40;

    std::uint32_t cbSize = RecordSize;
    std::uint32_t uFlags = 0;
    std::uintptr_t hwnd = 0;
    std::uintptr_t uId = 0;
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

// Windows of the class "tooltips_class32". A call on a window that is none does nothing.
class ToolTips {
  public:
    // Of a window or of a font; 0 is none.
    using Handle = std::uintptr_t;

    virtual ~ToolTips() = default;

    // InitCommonControlsEx, or InitCommonControls where the library lacks it.
    virtual void InitControls() = 0;

    // CreateWindowExA with the default position and size and the program's instance. 0 when there
    // can be none.
    virtual Handle Create(std::uint32_t extendedStyle, std::uint32_t style) = 0;
    // DestroyWindow.
    virtual void Destroy(Handle window) = 0;

    // GetWindowLongA and SetWindowLongA, index GWL_STYLE.
    virtual std::uint32_t WindowStyle(Handle window) const = 0;
    virtual void SetWindowStyle(Handle window, std::uint32_t style) = 0;

    // SendMessageA.
    virtual void Send(Handle window, std::uint32_t message, std::uintptr_t wParam,
                      std::uintptr_t lParam) = 0;
    // SendMessageA with the tool's record, which the message may fill. `text` may be nullptr; it
    // is passed on as a pointer, whatever its length, and the window keeps a copy.
    virtual void SendTool(Handle window, std::uint32_t message, TipTool& tool,
                          const char* text = nullptr) = 0;

    // GetDeviceCaps of the screen, index 90: dots per inch from top to bottom.
    virtual std::int32_t VerticalResolution() const = 0;
    // CreateFontIndirectA. The height counts as in the system's record, below 0 for that of the
    // letters; the size of `font` plays no part. 0 when there can be none.
    virtual Handle MakeFont(std::int32_t height, const TipFont& font) = 0;
    // DeleteObject.
    virtual void DeleteFont(Handle font) = 0;
};

}  // namespace platform
