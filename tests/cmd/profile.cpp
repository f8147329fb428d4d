#include "cmd/profile.h"

#include <doctest/doctest.h>

#include "cmd/badinput.h"
#include "cmd/console.h"
#include "runtime/encoding.h"

using namespace cmd_test;

namespace {

constexpr char Head[] = "[Quillmore]\nProfil=1\n";

std::string Slip(const std::string& text) {
    try {
        cmd::ReadProfile(text);
    } catch (const cmd::BadInput& input) {
        return std::to_string(input.line) + ": " + input.reason;
    }
    return "taken";
}

// The value of a line of the page Tweaks.
std::string ValueOf(const std::string& line) {
    return cmd::ReadProfile(std::string(Head) + "[Tweaks]\n" + line).at(0).value;
}

// What plan says to a profile's lines.
struct Planning : Program {
    int With(const std::string& lines) {
        console.files["p.txt"] = "\xEF\xBB\xBF" + std::string(Head) + lines;
        return Run({"plan", "p.txt"});
    }
};

}  // namespace

TEST_CASE("a profile is written by pages, each option below its caption, and read back") {
    const std::string text = cmd::WriteProfile({
        {"System", "chkA", "1", 0, "Erste"},
        {"System", "txtB", "", 0, "Zweite"},
        {"DFÜ", "cboC", "", 0, "Dritte", true},
        {"DFÜ", "txtD", " a\r\nb\t\"c\\", 0, "Vierte"},
        {"DFÜ", "txtE", "C:\\neu;x=y", 0, "Fünfte"},
    });
    CHECK(text ==
          "\xEF\xBB\xBF[Quillmore]\r\nProfil=1\r\n"
          "\r\n[System]\r\n; Erste\r\nchkA=1\r\n; Zweite\r\ntxtB=\r\n"
          "\r\n[DFÜ]\r\n; Dritte\r\n;cboC=\r\n; Vierte\r\ntxtD=\" a\\r\\nb\\t\\\"c\\\\\"\r\n"
          "; Fünfte\r\ntxtE=C:\\neu;x=y\r\n");
    const auto lines = cmd::ReadProfile(text);
    REQUIRE(lines.size() == 4);
    CHECK(lines[0].page == "System");
    CHECK(lines[0].control == "chkA");
    CHECK(lines[0].line == 6);
    CHECK(lines[2].page == "DFÜ");
    CHECK(lines[2].value == " a\r\nb\t\"c\\");
    CHECK(lines[3].value == "C:\\neu;x=y");
}

TEST_CASE("a profile is read in the code page and in every kind of Unicode") {
    const std::string text = std::string(Head) + "[DFÜ]\ntxtIETitel=ä€\n";
    std::string little = runtime::ToUtf16(text);
    std::string big = little;
    for (std::size_t i = 0; i + 1 < big.size(); i += 2) std::swap(big[i], big[i + 1]);
    std::string western = std::string(Head) + "[DF\xDC]\ntxtIETitel=\xE4\x80\n";
    for (const std::string& file :
         {western, "\xEF\xBB\xBF" + text, "\xFF\xFE" + little, "\xFE\xFF" + big}) {
        const auto lines = cmd::ReadProfile(file);
        REQUIRE(lines.size() == 1);
        CHECK(lines[0].page == "DFÜ");
        CHECK(lines[0].value == "ä€");
        CHECK(lines[0].line == 4);
    }
}

TEST_CASE("blanks around a value do not count, those between quotes do") {
    CHECK(ValueOf("a =  x y \t") == "x y");
    CHECK(ValueOf("\ta= \" x \"  ") == " x ");
    CHECK(ValueOf("a=\"\"") == "");
    CHECK(ValueOf("a=") == "");
    CHECK(ValueOf("a=b=c") == "b=c");
    CHECK(ValueOf("a=x\"y\"") == "x\"y\"");
}

TEST_CASE("what is no profile is refused with its line and a reason") {
    CHECK(Slip("") ==
          "1: das ist kein Profil von Quillmore: es beginnt nicht mit [Quillmore] und Profil=1");
    CHECK(Slip("\n[Anderes]\nx=1\n").starts_with("2: das ist kein Profil von Quillmore"));
    CHECK(Slip("x=1\n").starts_with("1: das ist kein Profil"));
    CHECK(Slip("[Quillmore]\nProfil=2\n").starts_with("2: das ist kein Profil"));
    CHECK(Slip("[Quillmore]\n").starts_with("1: das ist kein Profil"));
    CHECK(Slip("[Quillmore]\n[Tweaks]\na=1\n").starts_with("2: das ist kein Profil"));
    CHECK(Slip(std::string("[Quillmore]\0", 12)) == "1: die Datei ist kein Text");
    CHECK(Slip("\xEF\xBB\xBF[Quillmore]\nProfil=1\n; \xFF\n") == "1: die Datei ist kein Text");
    const std::string head = Head;
    CHECK(Slip(head + "[Tweaks\n") == "3: der Abschnitt endet nicht mit ]");
    CHECK(Slip(head + "[Tweaks]\nchkA\n") == "4: hier steht weder [Seite] noch Steuerelement=Wert");
    CHECK(Slip(head + "[Tweaks]\na=1\n\na=0\n") == "6: a steht schon in Zeile 4");
    CHECK(Slip(head + "[Tweaks]\na=\"x\n") ==
          "4: der Text in Anführungszeichen endet nicht mit einem");
    CHECK(Slip(head + "[Tweaks]\na=\"x\" y\n") ==
          "4: der Text in Anführungszeichen endet nicht mit einem");
    CHECK(Slip(head + "[Tweaks]\na=\"\\x\"\n") ==
          "4: hinter \\ steht keines der Zeichen r, n, t, \" und \\");
    CHECK(Slip(head + "[Tweaks]\na=\"\\") ==
          "4: hinter \\ steht keines der Zeichen r, n, t, \" und \\");
}

TEST_CASE("every slip of a profile is told with file, line and reason, and nothing is written") {
    Planning planning;
    const struct {
        const char* lines;
        const char* told;
    } rows[] = {
        {"[Werkzeuge]\nchkA=1\n", "es gibt keine Seite Werkzeuge"},
        {"[Tweaks]\nchkNichts=1\n", "die Seite Tweaks hat keine Einstellung chkNichts"},
        {"[System]\nchkUnloadDll=1\n", "die Seite System hat keine Einstellung chkUnloadDll"},
        {"[Tweaks]\nchkUnloadDll=2\n", "chkUnloadDll kann nur 0 oder 1 sein, nicht \"2\""},
        {"[Tweaks]\nchkUnloadDll=\n", "chkUnloadDll kann nur 0 oder 1 sein, nicht \"\""},
        {"[Tweaks]\ntxtTimeOut=123456\n", "der Text von txtTimeOut hat 6 Zeichen, Platz ist für 5"},
        {"[Tweaks]\ntxtTimeOut=bald\n", "txtTimeOut will eine Zahl, \"bald\" ist keine"},
        {"[DFÜ]\ncboMTU=x\n", "cboMTU will eine Zahl, \"x\" ist keine"},
        {"[DFÜ]\ntxtRWIN=-1\n", "txtRWIN will eine Zahl von 0 bis 2147483647, nicht \"-1\""},
        {"[DFÜ]\ntxtTTL=3000000000\n",
         "txtTTL will eine Zahl von 0 bis 2147483647, nicht \"3000000000\""},
        {"[System]\ntxtStartmenu=3000000000\n",
         "txtStartmenu kann nicht \"3000000000\" sein: Überlauf"},
        {"[DFÜ]\ntxtIETitel=日本\n",
         "der Text von txtIETitel hat ein Zeichen, das dieses Windows hier nicht speichern kann"},
        {"[DFÜ]\ntxtIETitel=\"a\\r\\nb\"\n",
         "der Text von txtIETitel hat ein Zeichen, das niemand eingeben kann"},
    };
    for (const auto& row : rows) {
        CHECK(planning.With(row.lines) == cmd::WrongInput);
        CHECK(planning.console.err == "p.txt: Zeile 4: " + std::string(row.told) + "\n");
        CHECK(planning.console.out == "");
        CHECK(planning.Run({"apply", "p.txt", "/backup:a.reg", "/yes"}) == cmd::WrongInput);
        CHECK(planning.machine.registry.Dump().size() == 0);
        CHECK_FALSE(planning.console.files.contains("a.reg"));
    }
}

TEST_CASE("a text of several lines goes where several lines can be typed") {
    Planning planning;
    CHECK(planning.With("[Sicherheit]\nchkWinLogOn=1\ntxtWinLogOnT=\"a\\r\\nb\"\n") ==
          cmd::Differs);
    CHECK(planning.console.err.find("Zeile") == std::string::npos);
}

TEST_CASE("the profile of what the controls show changes nothing that a bare plan does not") {
    Program program;
    program.machine.registry.Put(HKLM, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                                 "LegalNoticeText", BareTextValue("erste\r\nzweite \"Zeile\" "));
    program.machine.registry.Put(HKLM, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                                 "LegalNoticeCaption", BareTextValue(" Titel"));
    program.Run({"plan"});
    const std::string bare = program.console.out;
    CHECK(program.Run({"profile", "p.txt"}) == cmd::Fine);
    CHECK(program.console.out == "");
    CHECK(program.Run({"plan", "p.txt"}) == cmd::Differs);
    CHECK(program.console.out == bare);
}

TEST_CASE("a profile that names the packet size alone takes the receive window along") {
    Planning planning;
    CHECK(planning.With("[DFÜ]\ncboMTU=1500\n") == cmd::Differs);
    CHECK(planning.console.out.find("[TcpWindowSize]: REG_DWORD 0x000016d0 (5840)") !=
          std::string::npos);
    CHECK(planning.With("[DFÜ]\ncboMTU=1500\ntxtRWIN=7000\n") == cmd::Differs);
    CHECK(planning.console.out.find("[TcpWindowSize]: REG_DWORD 0x00001b58 (7000)") !=
          std::string::npos);
}

TEST_CASE("a profile that cannot be read or written is told with exit code 3") {
    Program program;
    CHECK(program.Run({"plan", "fehlt.txt"}) == cmd::NotAll);
    CHECK(program.console.err == "fehlt.txt: Datei nicht gefunden\n");
    program.console.diskIsFull = true;
    CHECK(program.Run({"profile", "p.txt"}) == cmd::NotAll);
    CHECK(program.console.err == "p.txt: Datenträger voll\n");
}

TEST_CASE("the boxes that go along with a check box have lines of their own") {
    Planning planning;
    CHECK(planning.With("[System]\nchkAutoLogin=1\ntxtALUserName=Paul\ntxtALPassword=geheim\n") ==
          cmd::Differs);
    CHECK(Has(planning.console.out, "[DefaultUserName]: REG_SZ \"Paul\"\n"));
    CHECK(Has(planning.console.out, "[DefaultPassword]: REG_SZ \"geheim\"\n"));
    CHECK(planning.Run({"profile", "q.txt"}) == cmd::Fine);
    CHECK(Has(planning.console.files["q.txt"], "\r\ntxtALUserName=\r\n"));
    CHECK(Has(planning.console.files["q.txt"], "\r\ntxtExtensions=\r\n"));
}

TEST_CASE("a profile says the same in whatever order its lines stand, and in any letter case") {
    Planning planning;
    for (const char* lines :
         {"[DFÜ]\ncboMTU=1500\ntxtRWIN=7000\n", "[dfü]\nTXTRWIN=7000\nCBOMTU=1500\n"}) {
        CHECK(planning.With(lines) == cmd::Differs);
        CHECK(Has(planning.console.out, "[TcpWindowSize]: REG_DWORD 0x00001b58 (7000)"));
    }
}

TEST_CASE("a control that is shut is left and told") {
    Planning planning;
    CHECK(planning.With("[System]\nchkEnableAGP4x=1\n") == cmd::Differs);
    CHECK(planning.console.err.starts_with(
        "chkEnableAGP4x ist hier nicht wählbar und bleibt, wie es ist.\n"));
    CHECK_FALSE(Has(planning.console.out, "nv4"));
}

TEST_CASE("a connection's preset loads its numbers, also where the machine has them already") {
    Planning planning;
    planning.Run({"apply", "/preset:dsl", "/nobackup", "/yes"});
    planning.console.files["p.txt"] = "\xEF\xBB\xBF" + std::string(Head) + "[DFÜ]\ntxtTTL=77\n";
    planning.Run({"plan", "p.txt"});
    CHECK(Has(planning.console.out, "[DefaultTTL]"));
    planning.Run({"plan", "p.txt", "/preset:dsl"});
    CHECK_FALSE(Has(planning.console.out, "[DefaultTTL]"));
}
