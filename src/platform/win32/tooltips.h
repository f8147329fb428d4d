#pragma once

#include "platform/tooltips.h"

namespace platform::win32 {

class ToolTips final : public platform::ToolTips {
  public:
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
};

}  // namespace platform::win32
