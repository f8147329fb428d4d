#include "platform/simulated/systeminformation.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/memory.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {
namespace {

// What the system does not tell is no value.
template <typename Fact>
std::optional<Fact> ToldFact(Journal& journal, Faults& faults, std::string call, const Fact& fact,
                             std::string_view subject = "") {
    journal.Note([&] { return subject.empty() ? call : call + ' ' + Quoted(subject); });
    if (faults.Check(call, subject)) return std::nullopt;
    return fact;
}

}  // namespace

std::optional<std::string> SystemInformation::ServicePack() const {
    return ToldFact(journal_, faults_, "GetVersionExA", servicePack);
}

std::optional<int> SystemInformation::ProcessorCount() const {
    return ToldFact(journal_, faults_, "GetSystemInfo", processorCount);
}

std::optional<PhysicalMemory> SystemInformation::Memory() const {
    return ToldFact(journal_, faults_, "GlobalMemoryStatusEx", memory_.physical);
}

std::vector<Drive> SystemInformation::Drives() const {
    return ToldFact(journal_, faults_, "GetLogicalDrives", drives).value_or(std::vector<Drive>{});
}

Volume SystemInformation::VolumeOn(std::string_view root) const {
    const auto found = volumes.find(root);
    const Volume volume = found == volumes.end() ? Volume{} : found->second;
    const Volume named =
        ToldFact(journal_, faults_, "GetVolumeInformationA", volume, root).value_or(Volume{});
    const Volume space =
        ToldFact(journal_, faults_, "GetDiskFreeSpaceExA", volume, root).value_or(Volume{});
    return {named.fileSystem, space.size, space.free, named.label};
}

std::optional<ScreenFormat> SystemInformation::MainScreen() const {
    return ToldFact(journal_, faults_, "GetDeviceCaps", screen);
}

std::optional<std::string> SystemInformation::ComputerName() const {
    return ToldFact(journal_, faults_, "GetComputerNameA", computerName);
}

}  // namespace platform::simulated
