// Single runs of the console program: what it says, its exit codes, what it leaves.
#include <windows.h>

#include <doctest/doctest.h>
#include <sddl.h>

#include "endtoend/console.h"
#include "endtoend/lines.h"
#include "endtoend/optiontable.h"
#include "endtoend/tools.h"
#include "endtoend/wholeregistry.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::ToWide;

constexpr char Head[] = "[Quillmore]\r\nProfil=1\r\n";
constexpr char Utf8[] = "\xEF\xBB\xBF";
const ValuePlace TimeOut = {"HKCU", "Control Panel\\Desktop", "HungAppTimeout"};
constexpr char TimeOutProfile[] = "[Tweaks]\r\ntxtTimeOut=4711\r\n";

// As long as it lives, a key may be read and nothing else.
class ReadOnlyKey {
  public:
    ReadOnlyKey(const std::string& root, const std::string& key) {
        RegOpenKeyExW(RootOf(root), ToWide(key).c_str(), 0, READ_CONTROL | WRITE_DAC, key_.Out());
        DWORD size = 0;
        RegGetKeySecurity(key_.Get(), DACL_SECURITY_INFORMATION, nullptr, &size);
        before_.resize(size);
        RegGetKeySecurity(key_.Get(), DACL_SECURITY_INFORMATION, before_.data(), &size);
        PSECURITY_DESCRIPTOR onlyRead = nullptr;
        ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;;KR;;;WD)", SDDL_REVISION_1,
                                                             &onlyRead, nullptr);
        const LSTATUS result = RegSetKeySecurity(key_.Get(), DACL_SECURITY_INFORMATION, onlyRead);
        LocalFree(onlyRead);
        if (result) throw Failed("the rights to " + key + " cannot be taken away");
    }
    ~ReadOnlyKey() { RegSetKeySecurity(key_.Get(), DACL_SECURITY_INFORMATION, before_.data()); }
    ReadOnlyKey(const ReadOnlyKey&) = delete;
    ReadOnlyKey& operator=(const ReadOnlyKey&) = delete;

  private:
    platform::win32::RegistryKey key_;
    std::vector<char> before_;
};

// A machine on which a first Apply has been, so that a bare one would change nothing.
class SettledMachine {
  public:
    SettledMachine() { CHECK(console.Run("apply /preset:dsl /nobackup /yes").code == 0); }

    // The registry is what it was, and beside the file nothing came into the folder.
    bool Untouched(const std::string& besides = "") const {
        std::vector<std::string> files = console.Files();
        std::erase(files, besides);
        return Joined(before.DifferencesTo(WholeRegistry::Now())) == "" && files == filesBefore;
    }
    void Remember() {
        before = WholeRegistry::Now();
        filesBefore = console.Files();
    }
    void WriteProfile(const std::string& file, const std::string& text) const {
        WriteFile(console.Path(file), text);
    }

    const Workplace workplace;
    const Console console{workplace};
    WholeRegistry before = WholeRegistry::Now();
    std::vector<std::string> filesBefore;
};

TEST_CASE_FIXTURE(SettledMachine,
                  "every exit code means what it says, and only 0 of apply has changed") {
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile);
    Remember();
    CHECK(console.Run("plan").code == 0);
    CHECK(console.Run("apply /nobackup").code == 0);
    CHECK(console.Run("plan P.txt").code == 1);
    CHECK(console.Run("plan P.txt /preset:schnell").code == 2);
    CHECK(console.Run("apply P.txt /yes").code == 2);
    CHECK(console.Run("plan fehlt.txt").code == 3);
    CHECK(console.Run("restore fehlt.reg /yes").code == 3);
    console.PretendWindows("win2k");
    for (const char* command : {"state", "plan", "profile N.txt", "backup N.reg",
                                "apply P.txt /nobackup /yes", "restore P.txt /yes"}) {
        CAPTURE(command);
        const ConsoleRun run = console.Run(command);
        CHECK(run.code == 4);
        CHECK(run.out == "");
        CHECK(LinesOf(run.err).size() == 1);
    }
    CHECK(console.Run("plan P.txt /raw").code == 1);
    CHECK(console.Run("/?").code == 0);
    console.PretendWindows("winxp");
    CHECK(console.Run("apply P.txt /nobackup", "n\r\n").code == 5);
    CHECK(Untouched());
    CHECK(console.Run("apply P.txt /nobackup /yes").code == 0);
    CHECK(ReadValue(TimeOut) == BareText("4711"));
}

TEST_CASE_FIXTURE(SettledMachine,
                  "only j lets apply and restore go on, and nobody is prompted in a file") {
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile);
    REQUIRE(console.Run("backup A.reg").code == 0);
    Remember();
    for (const char* command : {"apply P.txt /nobackup", "apply P.txt /backup:N.reg"}) {
        for (const char* answer : {"", "\r\n", "n\r\n", "N\n", "ja\r\n", "J\n", "nein", " j\r\n",
                                   "y\r\n", "\x1A", "n\r\nj\r\n"}) {
            CAPTURE(command);
            CAPTURE(answer);
            const ConsoleRun run = console.Run(command, answer);
            CHECK(run.code == 5);
            CHECK(run.err == "");
            CHECK(run.out.find("bernehmen?") == std::string::npos);
        }
    }
    CHECK(Untouched());
    for (const char* answer : {"j\r\n", "j\n", "j"}) {
        CAPTURE(answer);
        CHECK(console.Run("apply P.txt /nobackup", answer).code == 0);
        CHECK(ReadValue(TimeOut) == BareText("4711"));
        CHECK(console.Run("restore A.reg", "n\r\n").code == 5);
        CHECK(ReadValue(TimeOut) == BareText("4711"));
        CHECK(console.Run("restore A.reg", answer).code == 0);
        CHECK(Untouched());
    }
}

TEST_CASE_FIXTURE(SettledMachine, "a page's name comes in the console's code page, or in UTF-8") {
    const std::string in850 = console.Run("state").out;
    CHECK(in850.find("\r\nDF\x9A | cboMTU | MTU | \"3000\" | ") != std::string::npos);
    CHECK(in850.find("\xC3\x9C") == std::string::npos);
    const std::string inUtf8 = console.Run("state /utf8").out;
    CHECK(inUtf8.find("\r\nDF\xC3\x9C | cboMTU | MTU | \"3000\" | ") != std::string::npos);
    CHECK(LinesOf(inUtf8).size() == LinesOf(in850).size());
    const std::string csv = console.Run("state /csv").out;
    CHECK(csv.find("\r\n\"DF\x9A\";\"cboMTU\";\"MTU\";\"3000\";") != std::string::npos);
    // What the code page lacks has a stand-in there.
    WriteValue(TimeOut, TerminatedText("€"));
    CHECK(console.Run("state /utf8").out.find("\"€\"") != std::string::npos);
    CHECK(console.Run("state").out.find("\xE2\x82\xAC") == std::string::npos);
}

TEST_CASE_FIXTURE(SettledMachine,
                  "a file that is there is never overwritten by a backup, and apply stops") {
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile);
    WriteFile(console.Path("A.reg"), "alt");
    CreateDirectoryW(ToWide(console.Path("Ordner")).c_str(), nullptr);
    Remember();
    for (const char* file :
         {"A.reg", "a.REG", "Ordner", "P.txt\\A.reg", "fehlt\\A.reg", "NUL", "con.reg", "A?.reg"}) {
        CAPTURE(file);
        const ConsoleRun alone = console.Run(std::string("backup ") + file);
        CHECK(alone.code == 3);
        CHECK(alone.err.starts_with(std::string(file) + ": "));
        CHECK(LinesOf(alone.err).size() == 1);
        const ConsoleRun first = console.Run("apply P.txt /yes /backup:" + std::string(file));
        CHECK(first.code == 3);
        CHECK(first.out == "");
        CHECK(first.err == alone.err);
    }
    CHECK(ReadFile(console.Path("A.reg")) == "alt");
    CHECK(Untouched());
    RemoveDirectoryW(ToWide(console.Path("Ordner")).c_str());
}

TEST_CASE_FIXTURE(SettledMachine,
                  "apply writes its backup first, and restore by it leaves no trace") {
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile + "chkCDAutoPlay=1\r\n");
    Remember();
    const ConsoleRun run = console.Run("apply P.txt /preset:empfohlen:System /backup:A.reg /yes");
    CHECK(run.code == 0);
    CHECK(run.err == "");
    CHECK(ReadFile(console.Path("A.reg")).starts_with("\xFF\xFE"));
    CHECK_FALSE(Untouched("A.reg"));
    CHECK(console.Run("restore A.reg /yes").code == 0);
    CHECK(Untouched("A.reg"));
    CHECK(console.Run("restore A.reg").code == 0);
}

TEST_CASE_FIXTURE(SettledMachine,
                  "a profile is read in Windows-1252 and in every Unicode with its mark") {
    const std::string page = "[System]\r\ntxtCompanyName=Grün & Söhne €\r\n[DFÜ]\r\ntxtTTL=77\r\n";
    const std::wstring wide = ToWide(Head + page);
    std::string little(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t));
    std::string big = little;
    for (std::size_t i = 0; i + 1 < big.size(); i += 2) std::swap(big[i], big[i + 1]);
    const std::string western = std::string(Head) +
                                "[System]\r\ntxtCompanyName=Gr\xFCn & S\xF6hne \x80\r\n"
                                "[DF\xDC]\r\ntxtTTL=77\r\n";
    const ValuePlace company = {"HKLM", "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                                "RegisteredOrganization"};
    const ValuePlace live = {"HKLM", "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters",
                             "DefaultTTL"};
    for (const std::string& file :
         {western, Utf8 + (Head + page), "\xFF\xFE" + little, "\xFE\xFF" + big}) {
        CAPTURE(file.substr(0, 12));
        WriteProfile("P.txt", file);
        CHECK(console.Run("apply P.txt /nobackup /yes").code == 0);
        CHECK(ReadValue(company) == BareText("Grün & Söhne €"));
        CHECK(ReadValue(live) == Dword(77));
        CHECK(console.Run("apply /preset:standard:DFÜ,standard:System /nobackup /yes").code == 0);
        WriteValue(company, BareText("x"));
        CHECK(ReadValue(live) == Dword(128));
    }
    // Without its mark it is Windows-1252, and there is no page of that name.
    WriteProfile("P.txt", Head + page);
    Remember();
    const ConsoleRun run = console.Run("apply P.txt /nobackup /yes");
    CHECK(run.code == 2);
    CHECK(run.err.starts_with("P.txt: Zeile 6: "));
    CHECK(Untouched());
}

TEST_CASE_FIXTURE(SettledMachine,
                  "switches go by slash or hyphen, anywhere and in any letter case") {
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile);
    Remember();
    for (const char* line : {"plan P.txt /utf8", "PLAN P.txt -UTF8", "/Utf8 Plan P.TXT",
                             "-uTf8 pLaN \"P.txt\"", "  plan\tP.txt   /raw -utf8 "}) {
        CAPTURE(line);
        const ConsoleRun run = console.Run(line);
        CHECK(run.code == 1);
        CHECK(run.out.starts_with("ändern  HKCU\\Control Panel\\Desktop [HungAppTimeout]: "));
        CHECK(LinesOf(run.out).size() == 1);
    }
    CHECK(console.Run("plan -PRESET:Standard:dfü -UTF8").out ==
          console.Run("plan /preset:standard:DFÜ /utf8").out);
    CHECK(Untouched());
}

TEST_CASE_FIXTURE(SettledMachine,
                  "files and presets may have umlauts, blanks and what no code page knows") {
    WriteProfile("Grüße für Ω.txt", std::string(Head) + TimeOutProfile);
    Remember();
    CHECK(console.Run("plan \"Grüße für Ω.txt\" /reg:\"Löschen 中.reg\"").code == 1);
    CHECK(ReadFile(console.Path("Löschen 中.reg")).starts_with("\xFF\xFE"));
    CHECK(Untouched("Löschen 中.reg"));
    CHECK(console.Run("apply \"Grüße für Ω.txt\" /backup:\"Ä Ω.reg\" /yes").code == 0);
    CHECK(console.Run("restore \"" + console.Path("Ä Ω.reg") + "\" /yes").code == 0);
    const ConsoleRun missing = console.Run("plan \"Ärger.txt\"");
    CHECK(missing.code == 3);
    CHECK(missing.err.starts_with("\x8Erger.txt: "));
    CHECK(console.Run("plan \"Ärger.txt\" /utf8").err.starts_with("Ärger.txt: "));
}

TEST_CASE_FIXTURE(SettledMachine, "the help comes on one screen, for no command too") {
    const ConsoleRun help = console.Run("/?");
    CHECK(help.code == 0);
    CHECK(help.err == "");
    const std::vector<std::string> lines = LinesOf(help.out);
    CHECK(lines.size() <= 24);
    for (const std::string& line : lines) {
        // One byte a character.
        CAPTURE(line);
        CHECK(line.size() <= 79);
    }
    for (const char* command : {"state", "profile", "plan", "backup", "apply", "restore"}) {
        CAPTURE(command);
        CHECK(help.out.find(std::string("\r\nQuillmoreCmd ") + command + ' ') != std::string::npos);
    }
    CHECK(console.Run("").out == help.out);
    CHECK(console.Run("apply -?").out == help.out);
}

TEST_CASE_FIXTURE(SettledMachine,
                  "what is wrong in a file is told with file and line, and changes nothing") {
    struct Wrong {
        const char* text;
        const char* line;
    };
    Remember();
    const std::string good = std::string(Head) + TimeOutProfile;
    for (const auto& [text, line] : {Wrong{"chkGibtEsNicht=1", "5"},
                                     {"txtWindowsVersion=5.1.2", "5"},
                                     {"chkCDAutoPlay=2", "5"},
                                     {"txtTimeOut=1", "5"},
                                     {"[DFÜ]\r\ncboMTU=viel", "6"},
                                     {"kein Wert", "5"},
                                     {"[Tweaks", "5"}}) {
        CAPTURE(text);
        WriteProfile("P.txt", Utf8 + good + text + "\r\n");
        for (const char* command : {"plan P.txt /reg:N.reg", "apply P.txt /backup:N.reg /yes"}) {
            const ConsoleRun run = console.Run(command);
            CHECK(run.code == 2);
            CHECK(run.out == "");
            CHECK(LinesOf(run.err).size() == 1);
            CHECK(run.err.starts_with(std::string("P.txt: Zeile ") + line + ": "));
        }
    }
    WriteProfile("R.reg",
                 "Windows Registry Editor Version 5.00\r\n\r\n"
                 "[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\"\r\n"
                 "\"Wallpaper\"=\"bild.bmp\"\r\n");
    ConsoleRun run = console.Run("restore R.reg /yes");
    CHECK(run.code == 2);
    CHECK(run.err.starts_with("R.reg: Zeile 5: "));
    WriteProfile("R.reg",
                 "Windows Registry Editor Version 5.00\r\n\r\n"
                 "[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\r\n");
    run = console.Run("restore R.reg /yes");
    CHECK(run.code == 2);
    CHECK(run.err.starts_with("R.reg: Zeile 4: "));
    DeleteFileW(ToWide(console.Path("R.reg")).c_str());
    CHECK(Untouched("P.txt"));
}

TEST_CASE_FIXTURE(SettledMachine, "a key that may only be read is told, and all the rest is done") {
    const ValuePlace rate = {"HKLM", "SOFTWARE\\Microsoft\\MediaPlayer\\Settings\\MP3Encoding",
                             "LowRate"};
    WriteProfile("P.txt", std::string(Head) + TimeOutProfile + "chkMP3BitRate=1\r\n");
    REQUIRE(console.Run("backup A.reg").code == 0);
    Remember();
    const auto timeOut = ReadValue(TimeOut);
    {
        const ReadOnlyKey desktop(TimeOut.root, TimeOut.key);
        const ConsoleRun run = console.Run("apply P.txt /nobackup /yes");
        CHECK(run.code == 3);
        CHECK(run.err.starts_with("HKCU\\Control Panel\\Desktop: "));
        CHECK(run.err.ends_with(" (5)\r\n"));
        CHECK(LinesOf(run.err).size() == 1);
        CHECK(run.out.find("HungAppTimeout") == std::string::npos);
        CHECK(run.out.find("[LowRate]: REG_DWORD 0x0000dac0 (56000)") != std::string::npos);
        CHECK(ReadValue(TimeOut) == timeOut);
        CHECK(ReadValue(rate) == Dword(56000));
    }
    CHECK(console.Run("apply P.txt /nobackup /yes").code == 0);
    {
        const ReadOnlyKey desktop(TimeOut.root, TimeOut.key);
        const ConsoleRun run = console.Run("restore A.reg /yes");
        CHECK(run.code == 3);
        CHECK(run.err.starts_with("HKCU\\Control Panel\\Desktop [HungAppTimeout]: "));
        CHECK(run.err.ends_with(" (5)\r\n"));
        CHECK(LinesOf(run.err).size() == 1);
        CHECK(ReadValue(TimeOut) == BareText("4711"));
        CHECK_FALSE(ReadValue(rate));
    }
    CHECK(console.Run("restore A.reg /yes").code == 0);
    CHECK(Untouched());
}

TEST_CASE_FIXTURE(SettledMachine, "a box that the window shuts is not set by a profile either") {
    WriteProfile("P.txt", std::string(Head) + "[System]\r\nchkEnableAGP4x=1\r\n");
    Remember();
    console.Run("apply P.txt /nobackup /yes");
    CHECK_FALSE(KeyExists("HKLM", GraphicsDriverKey));
    CHECK(Untouched());
}

TEST_CASE_FIXTURE(SettledMachine, "a profile says the same in whatever order its lines stand") {
    const ValuePlace window = {"HKLM", "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters",
                               "TcpWindowSize"};
    for (const char* lines :
         {"cboMTU=1400\r\ntxtRWIN=5000\r\n", "txtRWIN=5000\r\ncboMTU=1400\r\n"}) {
        CAPTURE(lines);
        WriteProfile("P.txt", std::string(Head) + "[DF\xDC]\r\n" + lines);
        CHECK(console.Run("apply P.txt /nobackup /yes").code == 0);
        CHECK(ReadValue(window) == Dword(5000));
        REQUIRE(console.Run("apply /preset:isdn /nobackup /yes").code == 0);
    }
}

TEST_CASE_FIXTURE(SettledMachine,
                  "a connection's preset sets its numbers over those of a profile") {
    const ValuePlace live = {"HKLM", "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters",
                             "DefaultTTL"};
    WriteProfile("P.txt", std::string(Head) + "[DF\xDC]\r\ntxtTTL=77\r\n");
    // The machine has the numbers of DSL already.
    CHECK(console.Run("apply P.txt /preset:dsl /nobackup /yes").code == 0);
    CHECK(ReadValue(live) == Dword(64));
}

TEST_CASE_FIXTURE(SettledMachine, "state has one line an option, also when a text has more") {
    const std::string logon = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
    const std::size_t lines = LinesOf(console.Run("state").out).size();
    CHECK(lines >= 100);
    WriteValue({"HKLM", logon, "LegalNoticeCaption"}, TerminatedText("Achtung"));
    WriteValue({"HKLM", logon, "LegalNoticeText"}, TerminatedText("Erste\r\nZweite \"Zeile\""));
    const std::string plain = console.Run("state").out;
    const std::string csv = console.Run("state /csv").out;
    CHECK(LinesOf(plain).size() == lines);
    CHECK(LinesOf(csv).size() == lines + 1);
    CHECK(csv.find("\r\r") == std::string::npos);
}

}  // namespace
}  // namespace endtoend
