#pragma once

#include <map>

#include "platform/systeminformation.h"

namespace platform::simulated {

class Faults;
class Journal;
class Memory;

// A fresh one is a small machine of its time: one processor, a floppy drive and a CD drive without
// media, one disk, 1024 by 768 pixels.
class SystemInformation final : public platform::SystemInformation {
  public:
    SystemInformation(Journal& journal, Faults& faults, const simulated::Memory& memory)
        : journal_(journal), faults_(faults), memory_(memory) {}

    std::optional<std::string> ServicePack() const override;
    std::optional<int> ProcessorCount() const override;
    std::optional<PhysicalMemory> Memory() const override;
    std::vector<Drive> Drives() const override;
    Volume VolumeOn(std::string_view root) const override;
    std::optional<ScreenFormat> MainScreen() const override;
    std::optional<std::string> ComputerName() const override;

    std::string servicePack = "Service Pack 3";
    int processorCount = 1;
    std::vector<Drive> drives{{"A:\\", DriveKind::Removable},
                              {"C:\\", DriveKind::Fixed},
                              {"D:\\", DriveKind::OpticalDisc}};
    // By root; SystemFacts tells the same space. A drive that is not in here has no medium.
    std::map<std::string, Volume, std::less<>> volumes{
        {"C:\\", {"NTFS", 40007729152, 12884901888, "SYSTEM"}}};
    ScreenFormat screen{1024, 768, 32};
    std::string computerName = "QUILLMORE-PC";

  private:
    Journal& journal_;
    Faults& faults_;
    const simulated::Memory& memory_;
};

}  // namespace platform::simulated
