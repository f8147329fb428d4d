#include <doctest/doctest.h>

#include "endtoend/pages.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

// The one file of the system that an option rewrites, on the real disk.
namespace endtoend {
namespace {

using platform::win32::FileHandle;
using platform::win32::ToWide;

constexpr char Box[] = "chkHideWinComponents";

std::string PathOfFile() {
    return WindowsFolder() + "\\inf\\Sysoc.inf";
}

bool FileExists() {
    return GetFileAttributesW(ToWide(PathOfFile()).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void SetReadOnly(bool readOnly) {
    SetFileAttributesW(ToWide(PathOfFile()).c_str(),
                       readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
}

FileHandle Hold(DWORD sharing) {
    return FileHandle(CreateFileW(ToWide(PathOfFile()).c_str(), GENERIC_READ, sharing, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
}

// The file's beginning as Windows brings it along, with an umlaut in its code page.
constexpr char AsInstalled[] =
    "[Version]\r\nSignature = \"$Windows NT$\"\r\n\r\n[Components]\r\n"
    "NtComponents=ntoc.dll,NtOcSetupProc,,4\r\n"
    "MSWordPad=ocgen.dll,OcEntry,wordpad.inf,HIDE,7\r\n"
    "msmsgs=msgrocm.dll,OcEntry,msmsgs.inf,hide,7\r\n"
    "Zubeh\xF6r=ocgen.dll,OcEntry,accessor.inf,Hide,7\r\n";
constexpr char AsShown[] =
    "[Version]\r\nSignature = \"$Windows NT$\"\r\n\r\n[Components]\r\n"
    "NtComponents=ntoc.dll,NtOcSetupProc,,4\r\n"
    "MSWordPad=ocgen.dll,OcEntry,wordpad.inf,,7\r\n"
    "msmsgs=msgrocm.dll,OcEntry,msmsgs.inf,,7\r\n"
    "Zubeh\xF6r=ocgen.dll,OcEntry,accessor.inf,,7\r\n";

// A program whose box has been set, and that has said whatever it had to say.
class Clicked {
  public:
    explicit Clicked(const Workplace& workplace) : program_(workplace) {
        program_.OpenTab(TweaksPage);
        program_.Click(Box);
    }

    const OpenProgram& Running() const { return program_; }

    // The file, once it is as large as that.
    std::string FileOfSize(const std::string& expected) const {
        Until("the rewritten file", [&] { return SizeOf(PathOfFile()) == expected.size(); });
        return ReadFile(PathOfFile());
    }

    // The platform's own message, which is the only thing that is said.
    std::string Complaint() const { return program_.Answer("Quillmore", IDOK).text; }

  private:
    OpenProgram program_;
};

TEST_CASE("the components' file loses its marks and nothing else, byte for byte") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), AsInstalled);
    const Clicked clicked(workplace);
    CHECK(clicked.FileOfSize(AsShown) == AsShown);
    CHECK(clicked.Running().Box().window == nullptr);
    CHECK(workplace.Stored("WinComponents", "Show") == "true");
}

TEST_CASE("a byte-order mark goes, and a last line without an end gets one") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), "\xFF\xFE[Components]\r\na,Hide,7\r\nb,HiHidede,7");
    const Clicked clicked(workplace);
    const std::string expected = "[Components]\r\na,,7\r\nb,Hide,7\r\n";
    CHECK(clicked.FileOfSize(expected) == expected);
}

TEST_CASE("a read-only components' file is rewritten too") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), AsInstalled);
    SetReadOnly(true);
    const Clicked clicked(workplace);
    CHECK(clicked.FileOfSize(AsShown) == AsShown);
    CHECK(clicked.Running().Box().window == nullptr);
    SetReadOnly(false);
}

TEST_CASE("a missing components' file is complained of, and none is made") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    const Clicked clicked(workplace);
    CHECK(clicked.Complaint().starts_with("Laufzeitfehler '53'"));
    CHECK_FALSE(FileExists());
    CHECK(clicked.Running().Responds("frmMain"));
    CHECK(clicked.Running().Box().window == nullptr);
}

TEST_CASE("a components' file that nobody else may read stays as it is, with a complaint") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), AsInstalled);
    {
        const FileHandle held = Hold(0);
        REQUIRE(held);
        const Clicked clicked(workplace);
        CHECK(clicked.Complaint().starts_with("Laufzeitfehler '70'"));
        CHECK(clicked.Running().Box().window == nullptr);
    }
    CHECK(ReadFile(PathOfFile()) == AsInstalled);
}

TEST_CASE("a components' file that may be read but not deleted stays as it is, with a complaint") {
    const Workplace workplace;
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), AsInstalled);
    SUBCASE("whoever reads it lets others read") {
        const FileHandle held = Hold(FILE_SHARE_READ);
        REQUIRE(held);
        const Clicked clicked(workplace);
        CHECK(clicked.Complaint().starts_with("Laufzeitfehler '70'"));
        CHECK(clicked.Running().Box().window == nullptr);
    }
    SUBCASE("whoever reads it lets others do anything") {
        const FileHandle held = Hold(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        REQUIRE(held);
        const Clicked clicked(workplace);
        CHECK(clicked.Complaint().starts_with("Laufzeitfehler '70'"));
        CHECK(clicked.Running().Box().window == nullptr);
    }
    SUBCASE("it is read-only, and stays so") {
        SetReadOnly(true);
        {
            const FileHandle held = Hold(FILE_SHARE_READ);
            REQUIRE(held);
            const Clicked clicked(workplace);
            CHECK(clicked.Complaint().starts_with("Laufzeitfehler '70'"));
        }
        CHECK((GetFileAttributesW(ToWide(PathOfFile()).c_str()) & FILE_ATTRIBUTE_READONLY) != 0);
        SetReadOnly(false);
    }
    CHECK(ReadFile(PathOfFile()) == AsInstalled);
}

TEST_CASE("a stored choice rewrites the components' file with every start") {
    const Workplace workplace;
    workplace.Store("WinComponents", "Show", "TRUE");
    const EmptyPlace place(PathOfFile());
    WriteFile(PathOfFile(), AsInstalled);
    const OpenProgram program(workplace);
    CHECK(ReadFile(PathOfFile()) == AsShown);
    program.OpenTab(TweaksPage);
    CHECK(program.Checked(Box));
}

TEST_CASE("without the components' file a stored choice is passed over in silence at the start") {
    const Workplace workplace;
    workplace.Store("WinComponents", "Show", "true");
    const EmptyPlace place(PathOfFile());
    const OpenProgram program(workplace);
    CHECK(program.Box().window == nullptr);
    CHECK_FALSE(FileExists());
    CHECK(program.Text("txtSyncServer") == "");
}

}  // namespace
}  // namespace endtoend
