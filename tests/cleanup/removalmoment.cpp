#include <doctest/doctest.h>

#include <functional>
#include <utility>

#include "cleanup/fixture.h"
#include "platform/machinewith.h"

// A removal is about the moment of its confirmation: what happens while the shell shows windows of
// its own changes neither what goes nor how.

using cleanup_test::Lines;

namespace {

// A shell during whose doings other things happen.
class BusyShell final : public platform::Shell {
  public:
    explicit BusyShell(platform::Shell& shell) : shell_(shell) {}

    std::function<void()> whileEmptying;
    // Once.
    std::function<void()> whileMoving;

    std::int32_t OperateOnFiles(std::uint32_t function, std::string_view path,
                                std::uint16_t flags) override {
        const std::int32_t result = shell_.OperateOnFiles(function, path, flags);
        if (const auto act = std::exchange(whileMoving, nullptr)) act();
        return result;
    }
    void EmptyRecycleBin(std::uint32_t flags) override {
        shell_.EmptyRecycleBin(flags);
        if (whileEmptying) whileEmptying();
    }
    void Execute(std::string_view, std::string_view, std::string_view, std::string_view,
                 std::int32_t) override {}
    void ObjectProperties(std::int32_t) override {}
    std::string TypeName(std::string_view path, std::uint32_t attributes) const override {
        return shell_.TypeName(path, attributes);
    }
    std::string BrowseForFolder(const toolkit::Form&, std::string_view, std::uint32_t,
                                const FolderCallback&) override {
        return "";
    }
    std::string SpecialFolder(std::int32_t csidl) const override {
        return shell_.SpecialFolder(csidl);
    }

  private:
    platform::Shell& shell_;
};

// Two temp files and, as a row of its own, a folder with a file.
struct Busy {
    platform::simulated::Machine machine;
    platform::simulated::Disk& disk = machine.disk;
    BusyShell shell{machine.services.shell};
    platform::Machine services = platform::With(machine.services, {.shell = &shell});
    toolkit::Form form{machine.forms, "frmMain", "Quillmore", {}};
    cleanup::TempFiles tool{form, services};
    cleanup::TempFilesFrame& frame = tool.Frame();
    toolkit::ListView& list = frame.lvwFiles;

    Busy() {
        for (const char* path :
             {"C:\\x\\a.tmp", "C:\\x\\b.tmp", "C:\\WINDOWS\\Temp\\sub\\deep\\c.dat"}) {
            disk.MakeFile(path).content = "x";
        }
        form.Load();
        tool.Start();
        Search();
        REQUIRE(list.Count() == 3);
    }

    void Search() { frame.cmdSearchTempFiles.Press(); }
    void Clean() {
        machine.messages.Answer("Tempdateien löschen", platform::message::Yes);
        frame.cmdCleanTempFiles.Press();
    }
    bool IsThere(const char* path) const { return disk.Find(path) != nullptr; }
};

}  // namespace

TEST_CASE_FIXTURE(Busy, "rows that come while the recycle bin is emptied are not confirmed") {
    frame.chkCleanRecycleBin.SetValue(1);
    shell.whileEmptying = [&] {
        disk.MakeFile("C:\\x\\new.tmp");
        Search();
        REQUIRE(list.Count() == 4);
    };
    Clean();
    CHECK(IsThere("C:\\x\\new.tmp"));
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub"));
    CHECK(list.Count() == 0);
}

TEST_CASE_FIXTURE(Busy, "rows that are unticked while the recycle bin is emptied go all the same") {
    frame.chkCleanRecycleBin.SetValue(1);
    shell.whileEmptying = [&] { frame.TickAll(false); };
    Clean();
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
}

TEST_CASE_FIXTURE(Busy,
                  "a link that a search learns of while the bin is emptied is not confirmed") {
    disk.MakeFile("D:\\other\\a.tmp");
    frame.chkCleanRecycleBin.SetValue(1);
    shell.whileEmptying = [&] {
        platform::simulated::Disk::Erase(disk.At("C:\\x"));
        disk.MakeLink("C:\\x", "D:\\other");
        Search();
    };
    Clean();
    CHECK(IsThere("D:\\other\\a.tmp"));
}

TEST_CASE_FIXTURE(Busy, "a removal during a removal leaves the first one its own links") {
    disk.MakeFile("C:\\harmless\\h.tmp");
    disk.MakeFile("D:\\other\\a.tmp");
    Search();
    machine.folders.afterListing = [&](const std::string& path) {
        if (path != "C:\\WINDOWS\\Temp\\sub") return;
        machine.folders.afterListing = nullptr;
        platform::simulated::Disk::Erase(disk.At("C:\\x"));
        disk.MakeLink("C:\\x", "D:\\other");
        Search();
        frame.TickAll(false);
        for (int row = 0; row < list.Count(); ++row) {
            list.SetTicked(row, list.Text(row) == "c:\\harmless\\h.tmp");
        }
        Clean();
    };
    Clean();
    CHECK(machine.folders.afterListing == nullptr);
    CHECK_FALSE(IsThere("C:\\harmless\\h.tmp"));
    CHECK(IsThere("D:\\other\\a.tmp"));
}

TEST_CASE_FIXTURE(Busy, "a box that is unticked while the shell asks changes no further row") {
    frame.chkMoveToRecycleBin.SetValue(1);
    shell.whileMoving = [&] { frame.chkMoveToRecycleBin.SetValue(0); };
    Clean();
    CHECK(shell.whileMoving == nullptr);
    CHECK(machine.shell.recycleBin ==
          Lines{"C:\\WINDOWS\\Temp\\sub", "c:\\x\\a.tmp", "c:\\x\\b.tmp"});
    CHECK(machine.journal.Calls("DeleteFile").empty());
}
