#include "dialogs/systemreport.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/text.h"

namespace {

using platform::DriveKind;
using platform::Registry;
using platform::simulated::DwordValue;
using platform::simulated::StoredValue;
using platform::simulated::TextValue;

constexpr char ProcessorKey[] = "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";

struct Report {
    platform::simulated::Machine machine;

    Report() {
        Put("ProcessorNameString", TextValue("      Intel(R) Pentium(R) 4 CPU 2.40GHz"));
        Put("~MHz", DwordValue(2400));
    }

    void Put(const char* name, const StoredValue& value) {
        machine.registry.Put(Registry::LocalMachine, ProcessorKey, name, value);
    }

    std::string Text() const { return dialogs::SystemReport(machine.services); }

    // The value of the first line of that name; "absent" without one.
    std::string Value(const std::string& name) const {
        const std::string text = "\r\n" + Text();
        const std::string head = "\r\n" + name + ":\t";
        const std::size_t at = text.find(head);
        if (at == std::string::npos) return "absent";
        const std::size_t start = at + head.size();
        return text.substr(start, text.find("\r\n", start) - start);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Report, "the report on a fresh machine") {
    CHECK(Text() ==
          "Betriebssystem:\tMicrosoft Windows XP\r\n"
          "Version:\t5.1 (Build 2600)\r\n"
          "Service Pack:\tService Pack 3\r\n"
          "\r\n"
          "Prozessor:\tIntel(R) Pentium(R) 4 CPU 2.40GHz\r\n"
          "Taktfrequenz:\t2400 MHz\r\n"
          "Prozessoren:\t1\r\n"
          "\r\n"
          "Arbeitsspeicher:\t511,4 MB\r\n"
          "Davon frei:\t288,0 MB\r\n"
          "\r\n"
          "Bildschirm:\t1024 x 768 Pixel\r\n"
          "Farbtiefe:\t32 Bit\r\n"
          "\r\n"
          "Benutzer:\tBesitzer\r\n"
          "Computer:\tQUILLMORE-PC\r\n"
          "\r\n"
          "Laufwerk A:\tWechseldatenträger, nicht verfügbar\r\n"
          "Laufwerk C:\tFestplatte, Dateisystem NTFS, Größe 37,2 GB, frei 12,0 GB\r\n"
          "Laufwerk D:\tCD-/DVD-Laufwerk, nicht verfügbar\r\n");
}

TEST_CASE_FIXTURE(Report, "what cannot be read reads so everywhere, and nothing is invented") {
    for (const char* call :
         {"GetVersionExA", "GetSystemInfo", "GlobalMemoryStatusEx", "GetLogicalDrives",
          "GetDeviceCaps", "GetUserNameA", "GetComputerNameA", "RegOpenKeyExA"}) {
        machine.faults.FailAll(call, Registry::AccessDenied);
    }
    std::string expected;
    for (const char* name :
         {"Betriebssystem", "Version", "Service Pack", "", "Prozessor", "Taktfrequenz",
          "Prozessoren", "", "Arbeitsspeicher", "Davon frei", "", "Bildschirm", "Farbtiefe", "",
          "Benutzer", "Computer", "", "Laufwerke"}) {
        if (*name) expected += std::string(name) + ":\tnicht verfügbar";
        expected += "\r\n";
    }
    CHECK(Text() == expected);
}

TEST_CASE_FIXTURE(Report, "each call that fails takes its own lines only") {
    machine.systemInformation.drives = {{"C:\\", DriveKind::Fixed}};
    const std::string whole = Text();
    const auto calls = static_cast<int>(machine.journal.Count());
    int withoutEffect = 0;
    for (int n = 1; n <= calls; ++n) {
        CAPTURE(n);
        machine.faults.FailNth(n, Registry::AccessDenied);
        const std::string text = Text();
        std::size_t missing = 0;
        for (std::size_t at = 0; (at = text.find("nicht verfügbar", at)) != std::string::npos;
             ++at) {
            ++missing;
        }
        CHECK(missing <= 2);
        if (text == whole) ++withoutEffect;
        machine.faults.Clear();
    }
    // The registry's two keys are closed after they have been read.
    CHECK(calls == 16);
    CHECK(withoutEffect == 2);
}

TEST_CASE_FIXTURE(Report, "a processor that the registry does not name") {
    SUBCASE("the key is absent") {
        machine.registry.EraseKey(Registry::LocalMachine, ProcessorKey);
    }
    SUBCASE("the key may not be read") {
        machine.faults.FailOn(std::string("HKLM\\") + ProcessorKey, Registry::AccessDenied);
    }
    SUBCASE("the types are wrong") {
        Put("ProcessorNameString", DwordValue(7));
        Put("~MHz", TextValue("2400"));
    }
    SUBCASE("the name is longer than any") {
        Put("ProcessorNameString", TextValue(std::string(400, 'x')));
        machine.registry.Erase(Registry::LocalMachine, ProcessorKey, "~MHz");
    }
    CHECK(Value("Prozessor") == "nicht verfügbar");
    CHECK(Value("Taktfrequenz") == "nicht verfügbar");
    CHECK(Value("Prozessoren") == "1");
}

TEST_CASE_FIXTURE(Report, "a processor's name ends at its first NUL, and blank is no name") {
    Put("ProcessorNameString", TextValue(std::string("AMD\0rest", 8)));
    CHECK(Value("Prozessor") == "AMD");
    Put("ProcessorNameString", TextValue("   "));
    CHECK(Value("Prozessor") == "nicht verfügbar");
}

TEST_CASE_FIXTURE(Report, "the keys of the processor are read only, and closed again") {
    Text();
    CHECK(machine.registry.OpenHandles() == 0);
    for (const std::string& line : machine.journal.Calls("RegOpenKeyExA")) {
        CHECK(line.find(" 0x01 ") != std::string::npos);
    }
    CHECK(machine.journal.Calls("RegOpenKeyExA").size() == 2);
}

TEST_CASE_FIXTURE(Report, "a system without service pack says so") {
    machine.systemInformation.servicePack = "";
    CHECK(Value("Service Pack") == "keines");
}

TEST_CASE_FIXTURE(Report,
                  "a user name of 254 characters is shown as a whole, a longer one not told") {
    std::string name;
    for (int count = 0; count < 254; ++count) name += "ü";
    machine.systemFacts.userName = name;
    CHECK(Value("Benutzer") == name);
    machine.systemFacts.userName = name + "ü";
    CHECK(Value("Benutzer") == "nicht verfügbar");
}

TEST_CASE_FIXTURE(Report, "drives of each kind, and one that tells only half") {
    machine.systemInformation.drives = {{"E:\\", DriveKind::Network},
                                        {"F:\\", DriveKind::MemoryDisk},
                                        {"G:\\", DriveKind::Unknown},
                                        {"H:\\", DriveKind::Fixed}};
    machine.systemInformation.volumes = {
        {"E:\\", {"NTFS", 1024, 0}}, {"F:\\", {"FAT", {}, {}}}, {"G:\\", {{}, 2048, 1023}}};
    CHECK(Value("Laufwerk E") == "Netzlaufwerk, Dateisystem NTFS, Größe 1,0 KB, frei 0 Bytes");
    CHECK(Value("Laufwerk F") ==
          "RAM-Datenträger, Dateisystem FAT, Größe nicht verfügbar, "
          "frei nicht verfügbar");
    CHECK(Value("Laufwerk G") == "Dateisystem nicht verfügbar, Größe 2,0 KB, frei 1023 Bytes");
    CHECK(Value("Laufwerk H") == "Festplatte, nicht verfügbar");
}

TEST_CASE("sizes are told in the largest unit of which there is one") {
    const runtime::NumberSigns german;
    const auto text = [&](std::uint64_t bytes) { return dialogs::SizeText(bytes, german); };
    CHECK(text(0) == "0 Bytes");
    CHECK(text(1023) == "1023 Bytes");
    CHECK(text(1024) == "1,0 KB");
    CHECK(text(1536) == "1,5 KB");
    CHECK(text(1048575) == "1023,9 KB");
    CHECK(text(1048576) == "1,0 MB");
    CHECK(text(1ull << 30) == "1,0 GB");
    CHECK(text(1ull << 40) == "1,0 TB");
    CHECK(text(1ull << 50) == "1024,0 TB");
    CHECK(text(~0ull) == "16777215,9 TB");
    CHECK(dialogs::SizeText(1536, {".", ","}) == "1.5 KB");
}
