#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/tooltips.h"

namespace platform::simulated {

class Faults;
class Journal;

// Tooltip windows that keep what they are told and are never seen. Of two tools with the same
// window and identifier the first one counts, as on the platform.
class ToolTips final : public platform::ToolTips {
  public:
    ToolTips(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    void InitControls() override;
    Handle Create(std::uint32_t extendedStyle, std::uint32_t style) override;
    void Destroy(Handle window) override;
    std::uint32_t WindowStyle(Handle window) const override;
    void SetWindowStyle(Handle window, std::uint32_t style) override;
    void Send(Handle window, std::uint32_t message, std::uintptr_t wParam,
              std::uintptr_t lParam) override;
    void SendTool(Handle window, std::uint32_t message, TipTool& tool, const char* text) override;
    std::int32_t VerticalResolution() const override;
    Handle MakeFont(std::int32_t height, const TipFont& font) override;
    void DeleteFont(Handle font) override;

    struct Tool {
        TipTool record;
        std::string text;
    };

    struct Window {
        std::uint32_t style = 0;
        std::uintptr_t backColour = 0;
        std::uintptr_t textColour = 0;
        std::uintptr_t visibleTime = 0;
        std::uintptr_t delayTime = 0;
        std::uintptr_t width = 0;
        Handle font = 0;
        std::vector<Tool> tools;

        // nullptr when there is no such tool.
        const Tool* Find(std::uintptr_t window, std::uintptr_t id) const;
    };

    struct Font {
        std::int32_t height = 0;
        TipFont font;
    };

    // A mistake in the test when there is no such window or font (std::out_of_range).
    const Window& At(Handle window) const { return windows_.at(window); }
    const Font& FontAt(Handle font) const { return fonts_.at(font); }
    std::size_t OpenWindows() const { return windows_.size(); }
    std::size_t OpenFonts() const { return fonts_.size(); }

  private:
    bool Fails(std::string_view call) const;
    Window* Existing(Handle window);

    Journal& journal_;
    Faults& faults_;
    std::map<Handle, Window> windows_;
    std::map<Handle, Font> fonts_;
    Handle next_ = 1;
};

}  // namespace platform::simulated
