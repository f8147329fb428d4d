#pragma once

#include "platform/otherwindows.h"

namespace platform::win32 {

class OtherWindows final : public platform::OtherWindows {
  public:
    Handle Find(const std::string& className, const char* title) const override;
    Handle FindChild(Handle parent, const std::string& className) const override;
    std::uint32_t ExtendedStyle(Handle window) const override;
    void SetExtendedStyle(Handle window, std::uint32_t style) override;
    void SetLayeredAttributes(Handle window, std::uint32_t colourKey, std::uint8_t alpha,
                              std::uint32_t flags) override;
    std::int32_t Send(Handle window, std::uint32_t message, std::uint32_t wParam,
                      std::uint32_t lParam) override;
    void SetPosition(Handle window, Handle after, const toolkit::Rect& place,
                     std::uint32_t flags) override;
    void Redraw(Handle window) override;
};

}  // namespace platform::win32
