#include "dialogs/systemreport.h"

#include <array>
#include <optional>
#include <string_view>

#include "platform/locale.h"
#include "platform/operatingsystem.h"
#include "platform/registry.h"
#include "platform/systemfacts.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace dialogs {
namespace {

using Text = std::optional<std::string>;

constexpr const char* Unavailable = "nicht verfügbar";
constexpr const char* LineEnd = "\r\n";
constexpr std::string_view ProcessorKey = "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";

std::string Line(const char* name, const Text& value) {
    return std::string(name) + ":\t" + value.value_or(Unavailable) + LineEnd;
}

// The data of a value below the key of the first processor, if it has that type. The key is opened
// for reading only: nobody may write there.
Text ProcessorData(platform::Registry& registry, std::string_view name, std::uint32_t type) {
    using platform::Registry;
    Registry::Key key = 0;
    if (registry.Open(Registry::LocalMachine, ProcessorKey, Registry::MayQueryValue, key) !=
        Registry::Success) {
        return std::nullopt;
    }
    std::array<std::uint8_t, 256> data{};
    auto size = static_cast<std::uint32_t>(data.size());
    std::uint32_t found = Registry::None;
    const auto result = registry.Query(key, name, found, data.data(), size);
    registry.Close(key);
    if (result != Registry::Success || found != type) return std::nullopt;
    return std::string(data.begin(), data.begin() + size);
}

// The makers of processors fill their names up with blanks in front.
Text ProcessorName(const platform::Machine& machine) {
    const Text data =
        ProcessorData(machine.registry, "ProcessorNameString", platform::Registry::String);
    if (!data) return std::nullopt;
    std::string name = runtime::Trim(machine.locale.FromAnsi(data->substr(0, data->find('\0'))));
    if (name.empty()) return std::nullopt;
    return name;
}

Text ProcessorSpeed(const platform::Machine& machine) {
    const Text data = ProcessorData(machine.registry, "~MHz", platform::Registry::Dword);
    if (!data || data->size() != 4) return std::nullopt;
    std::uint32_t megahertz = 0;
    for (std::size_t at = 4; at-- > 0;) {
        megahertz = megahertz << 8 | static_cast<std::uint8_t>((*data)[at]);
    }
    return std::to_string(megahertz) + " MHz";
}

std::string OperatingSystemLines(const platform::Machine& machine) {
    Text name;
    Text version;
    runtime::Skip([&] {
        const auto facts = machine.operatingSystem.Facts();
        name = facts.name;
        version = std::to_string(facts.major) + '.' + std::to_string(facts.minor) + " (Build " +
                  std::to_string(facts.build) + ')';
    });
    Text servicePack = machine.systemInformation.ServicePack();
    if (servicePack && servicePack->empty()) servicePack = "keines";
    return Line("Betriebssystem", name) + Line("Version", version) +
           Line("Service Pack", servicePack);
}

std::string ProcessorLines(const platform::Machine& machine) {
    std::string lines = Line("Prozessor", ProcessorName(machine));
    lines += Line("Taktfrequenz", ProcessorSpeed(machine));
    const auto count = machine.systemInformation.ProcessorCount();
    return lines + Line("Prozessoren", count ? Text(std::to_string(*count)) : std::nullopt);
}

std::string MemoryLines(const platform::Machine& machine) {
    const auto memory = machine.systemInformation.Memory();
    const auto signs = machine.locale.Signs();
    const auto text = [&](auto bytes) {
        return memory ? Text(SizeText(*memory.*bytes, signs)) : std::nullopt;
    };
    return Line("Arbeitsspeicher", text(&platform::PhysicalMemory::total)) +
           Line("Davon frei", text(&platform::PhysicalMemory::free));
}

std::string ScreenLines(const platform::Machine& machine) {
    Text resolution;
    Text depth;
    if (const auto screen = machine.systemInformation.MainScreen()) {
        resolution =
            std::to_string(screen->width) + " x " + std::to_string(screen->height) + " Pixel";
        depth = std::to_string(screen->colourDepth) + " Bit";
    }
    return Line("Bildschirm", resolution) + Line("Farbtiefe", depth);
}

std::string KindText(platform::DriveKind kind) {
    using platform::DriveKind;
    switch (kind) {
        case DriveKind::Removable:
            return "Wechseldatenträger, ";
        case DriveKind::Fixed:
            return "Festplatte, ";
        case DriveKind::Network:
            return "Netzlaufwerk, ";
        case DriveKind::OpticalDisc:
            return "CD-/DVD-Laufwerk, ";
        case DriveKind::MemoryDisk:
            return "RAM-Datenträger, ";
        case DriveKind::Unknown:
            break;
    }
    return "";
}

// Of a drive without a medium nothing is known but its kind: that is said once.
std::string DriveText(const platform::Drive& drive, const platform::Volume& volume,
                      const runtime::NumberSigns& signs) {
    const std::string kind = KindText(drive.kind);
    if (!volume.fileSystem && !volume.size && !volume.free) return kind + Unavailable;
    const auto size = [&](const std::optional<std::uint64_t>& bytes) {
        return bytes ? SizeText(*bytes, signs) : Unavailable;
    };
    return kind + "Dateisystem " + volume.fileSystem.value_or(Unavailable) + ", Größe " +
           size(volume.size) + ", frei " + size(volume.free);
}

std::string NameLines(const platform::Machine& machine) {
    const std::string user = machine.systemFacts.UserName();
    std::string lines = Line("Benutzer", user.empty() ? std::nullopt : Text(user));
    return lines + Line("Computer", machine.systemInformation.ComputerName());
}

std::string DriveLines(const platform::Machine& machine) {
    const auto drives = machine.systemInformation.Drives();
    if (drives.empty()) return Line("Laufwerke", std::nullopt);
    const auto signs = machine.locale.Signs();
    std::string lines;
    for (const platform::Drive& drive : drives) {
        const auto volume = machine.systemInformation.VolumeOn(drive.root);
        lines +=
            Line(("Laufwerk " + drive.root.substr(0, 1)).c_str(), DriveText(drive, volume, signs));
    }
    return lines;
}

}  // namespace

std::string SizeText(std::uint64_t bytes, const runtime::NumberSigns& signs) {
    constexpr const char* units[] = {" Bytes", " KB", " MB", " GB", " TB"};
    if (bytes < 1024) return std::to_string(bytes) + units[0];
    std::size_t unit = 1;
    std::uint64_t one = 1024;
    for (; bytes / one >= 1024 && unit + 1 < std::size(units); ++unit) one *= 1024;
    const std::uint64_t tenths = bytes % one * 10 / one;
    return std::to_string(bytes / one) + signs.decimal + std::to_string(tenths) + units[unit];
}

std::string SystemReport(const platform::Machine& machine) {
    std::string report;
    for (const auto part :
         {OperatingSystemLines, ProcessorLines, MemoryLines, ScreenLines, NameLines, DriveLines}) {
        if (!report.empty()) report += LineEnd;
        report += part(machine);
    }
    return report;
}

}  // namespace dialogs
