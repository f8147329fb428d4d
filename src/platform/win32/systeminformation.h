#pragma once

#include "platform/systeminformation.h"

namespace platform::win32 {

class SystemInformation final : public platform::SystemInformation {
  public:
    std::optional<std::string> ServicePack() const override;
    std::optional<int> ProcessorCount() const override;
    std::optional<PhysicalMemory> Memory() const override;
    std::vector<Drive> Drives() const override;
    Volume VolumeOn(std::string_view root) const override;
    std::optional<ScreenFormat> MainScreen() const override;
    std::optional<std::string> ComputerName() const override;
};

}  // namespace platform::win32
