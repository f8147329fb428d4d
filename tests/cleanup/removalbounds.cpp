#include <doctest/doctest.h>

#include <set>

#include "cleanup/fixture.h"
#include "runtime/text.h"

// Nothing outside of the rows is ever touched: after each removal the disk holds what it held
// before, but for what the ticked rows and the folder rows name.

using cleanup_test::Fixture;
using cleanup_test::Lines;

namespace {

using Snapshot = std::map<std::string, std::string>;

struct Bounds : Fixture {
    bool intoBin = false;
    std::map<std::string, std::string> places;

    Bounds() {
        frame.chkCleanUserTempFolder.SetValue(1);
        disk.MakeFolder("C:\\UserTemp");
        for (const char* path : {"precious.txt", "precious.tmp", "deep\\precious.tmp"}) {
            File("D:\\data\\" + std::string(path), 33, path);
            File("C:\\data\\" + std::string(path), 32, path);
        }
        // Only what the temp folder brings is in the list.
        disk.MakeFolder("E:\\");
        frame.drvSelect.SetDrives({"e:"});
        frame.drvSelect.SetDrive("e:");
    }

    // Whether the place is in one of the rows that the removal is about.
    static bool Named(const std::set<std::string>& rows, std::string place) {
        for (;;) {
            if (rows.contains(place)) return true;
            const std::size_t end = place.rfind('\\');
            if (end == std::string::npos) return false;
            place.resize(end);
        }
    }

    // The places themselves, before anything moves: a row behind a link names what lies there.
    void NotePlaces() {
        for (int row = 0; row < list.Count(); ++row) {
            const auto* node = disk.Find(list.Text(row), platform::simulated::Disk::Last::Keep);
            if (node) places[list.Text(row)] = node->Path();
        }
    }

    // Removes what is in the list and returns what has changed outside of the rows.
    Lines ChangedOutside() {
        std::set<std::string> rows;
        for (int row = 0; row < list.Count(); ++row) {
            const auto place = places.find(list.Text(row));
            const bool concerned = list.Ticked(row) || list.Text(row, 2) == "Dateiordner";
            if (concerned && place != places.end()) rows.insert(place->second);
        }
        const Snapshot before = disk.Snapshot();
        if (intoBin) Tick(frame.chkMoveToRecycleBin);
        Clean();
        const Snapshot after = disk.Snapshot();
        Lines changed;
        for (const auto& [path, state] : before) {
            const auto found = after.find(path);
            const bool same = found != after.end() && found->second == state;
            if (!same && !Named(rows, path)) changed.push_back(path);
        }
        for (const auto& [path, state] : after) {
            if (!before.contains(path)) changed.push_back(path);
        }
        return changed;
    }
    void TickLastAlone() {
        frame.TickAll(false);
        list.SetTicked(list.Count() - 1, true);
    }
    bool IsThere(const std::string& path) const {
        return disk.Find(path, platform::simulated::Disk::Last::Keep) != nullptr;
    }
};

struct Shape {
    const char* name;
    void (*make)(Bounds& on);
    // What happens between search and removal.
    void (*meanwhile)(Bounds& on);
    // A path that must be gone, and one that must be there; nullptr for none.
    const char* gone;
    const char* kept;
};

void Nothing(Bounds&) {}

void Relink(Bounds& on, const char* path, const char* target) {
    platform::simulated::Disk::Erase(on.disk.At(path));
    on.disk.MakeLink(path, target);
}

const Shape Shapes[] = {
    {"a plain tree", [](Bounds& on) { on.File("C:\\UserTemp\\a\\b\\c.dat"); }, Nothing,
     "C:\\UserTemp\\a", nullptr},
    {"a junction in a folder into another tree",
     [](Bounds& on) {
         on.disk.MakeLink("C:\\UserTemp\\a\\link", "C:\\data");
         on.File("C:\\UserTemp\\a\\c.dat");
     },
     // The files behind it are rows of their own; unticked they stay.
     [](Bounds& on) {
         REQUIRE(on.list.Text(0).starts_with("C:\\UserTemp\\a\\link\\"));
         on.TickLastAlone();
     },
     "C:\\UserTemp\\a", "C:\\data\\deep\\precious.tmp"},
    {"a folder row that is a junction into another tree",
     [](Bounds& on) { on.disk.MakeLink("C:\\UserTemp\\link", "D:\\data"); },
     [](Bounds& on) { on.TickLastAlone(); }, "C:\\UserTemp\\link", "D:\\data\\precious.txt"},
    // The size of a folder with such a loop cannot be told, so it has no row of its own.
    {"a junction onto its own folder",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\a\\c.dat");
         on.disk.MakeLink("C:\\UserTemp\\a\\loop", "C:\\UserTemp\\a");
     },
     Nothing, "C:\\UserTemp\\a\\c.dat", "C:\\UserTemp\\a\\loop"},
    {"a junction onto its own folder that comes after the search",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\c.dat"); },
     [](Bounds& on) { on.disk.MakeLink("C:\\UserTemp\\a\\loop", "C:\\UserTemp\\a"); },
     "C:\\UserTemp\\a", "C:\\UserTemp"},
    {"a junction onto the folder of the search",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\c.dat");
         on.File("C:\\UserTemp\\a\\d.dat");
     },
     [](Bounds& on) {
         on.disk.MakeLink("C:\\UserTemp\\a\\up", "C:\\UserTemp");
         on.TickLastAlone();
     },
     "C:\\UserTemp\\a", "C:\\UserTemp\\c.dat"},
    {"a junction onto the root of a drive",
     [](Bounds& on) { on.disk.MakeLink("C:\\UserTemp\\a\\root", "D:\\"); },
     [](Bounds& on) { on.TickLastAlone(); }, "C:\\UserTemp\\a", "D:\\data\\precious.txt"},
    {"a dead junction", [](Bounds& on) { on.File("C:\\UserTemp\\a\\c.dat"); },
     [](Bounds& on) { on.disk.MakeLink("C:\\UserTemp\\a\\dead", "C:\\nowhere\\at\\all"); },
     "C:\\UserTemp\\a", nullptr},
    {"junctions that lead to each other",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\a\\c.dat");
         on.File("C:\\UserTemp\\b\\c.dat");
     },
     [](Bounds& on) {
         on.disk.MakeLink("C:\\UserTemp\\a\\to b", "C:\\UserTemp\\b");
         on.disk.MakeLink("C:\\UserTemp\\b\\to a", "C:\\UserTemp\\a");
     },
     "C:\\UserTemp\\b", "C:\\data\\precious.txt"},
    {"a hidden junction in a hidden folder",
     [](Bounds& on) {
         on.disk.MakeFolder("C:\\UserTemp\\h", 22);
         on.disk.MakeLink("C:\\UserTemp\\h\\link", "C:\\data").attributes |= 6;
     },
     Nothing, "C:\\UserTemp\\h", "C:\\data\\precious.tmp"},
    {"a read-only junction",
     [](Bounds& on) {
         on.disk.MakeLink("C:\\UserTemp\\a\\link", "C:\\data").attributes |= 1;
         on.disk.At("C:\\UserTemp\\a").attributes |= 1;
     },
     [](Bounds& on) { on.TickLastAlone(); }, "C:\\UserTemp\\a", "C:\\data\\precious.tmp"},
    {"a symbolic link to a file",
     [](Bounds& on) {
         auto& link = on.disk.MakeFile("C:\\UserTemp\\a\\file", 32 | 0x400);
         link.target = "C:\\data\\precious.txt";
     },
     Nothing, "C:\\UserTemp\\a", "C:\\data\\precious.txt"},
    {"a folder row that becomes a junction after the search",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\precious.txt"); },
     [](Bounds& on) { Relink(on, "C:\\UserTemp\\a", "C:\\data"); }, "C:\\UserTemp\\a",
     "C:\\data\\precious.txt"},
    {"the folder of a file row that becomes a junction after the search",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\b\\precious.tmp"); },
     [](Bounds& on) {
         Relink(on, "C:\\UserTemp\\a\\b", "C:\\data\\deep");
         // Without the folder row there is only the file.
         on.list.RemoveRow(1);
     },
     nullptr, "C:\\data\\deep\\precious.tmp"},
    {"a folder inside a folder row that becomes a junction after the search",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\b\\precious.tmp"); },
     [](Bounds& on) { Relink(on, "C:\\UserTemp\\a\\b", "C:\\data\\deep"); }, "C:\\UserTemp\\a",
     "C:\\data\\deep\\precious.tmp"},
    {"the searched folder itself becomes a junction after the search",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\precious.tmp");
         on.File("C:\\UserTemp\\deep\\x.dat");
     },
     [](Bounds& on) { Relink(on, "C:\\UserTemp", "C:\\data"); }, nullptr, "C:\\data\\precious.tmp"},
    {"a link that leads elsewhere since the search",
     [](Bounds& on) {
         on.disk.MakeLink("C:\\UserTemp\\link", "C:\\data");
         on.File("E:\\other\\precious.txt");
     },
     [](Bounds& on) {
         Relink(on, "C:\\UserTemp\\link", "E:\\other");
         on.disk.Find("C:\\UserTemp\\link", platform::simulated::Disk::Last::Keep)
             ->modified.second = 1;
     },
     "C:\\UserTemp\\link", "E:\\other\\precious.txt"},
    {"a folder that becomes a junction while the one around it is being removed",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\b\\c.dat", 33); },
     [](Bounds& on) {
         on.machine.folders.afterListing = [&on](const std::string& path) {
             if (path != "C:\\UserTemp\\a") return;
             on.machine.folders.afterListing = nullptr;
             Relink(on, "C:\\UserTemp\\a\\b", "C:\\data\\deep");
         };
     },
     "C:\\UserTemp\\a", "C:\\data\\deep\\precious.tmp"},
    // The system would take them for x.dat and b.
    {"names with a dot or a blank behind them",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\x.dat", 33);
         on.File("C:\\UserTemp\\x.dat.");
         on.File("C:\\UserTemp\\x.dat ");
         on.disk.MakeFolder("C:\\UserTemp\\b ");
     },
     Nothing, nullptr, "C:\\UserTemp\\x.dat."},
    {"a folder with a blank behind its name inside a folder row",
     [](Bounds& on) { on.File("C:\\UserTemp\\a\\b \\c.dat", 33); }, Nothing, nullptr,
     "C:\\UserTemp\\a\\b \\c.dat"},
    {"read-only files and folders",
     [](Bounds& on) {
         on.disk.MakeFolder("C:\\UserTemp\\a", 17);
         on.File("C:\\UserTemp\\a\\c.dat", 33);
         on.File("C:\\UserTemp\\ro.dat", 33);
     },
     // A read-only file has no row outside of a folder's.
     Nothing, "C:\\UserTemp\\a", "C:\\UserTemp\\ro.dat"},
    {"locked files",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\a\\held.dat").held = true;
         on.File("C:\\UserTemp\\held.dat").held = true;
     },
     Nothing, nullptr, "C:\\UserTemp\\a\\held.dat"},
    {"a locked folder", [](Bounds& on) { on.disk.MakeFolder("C:\\UserTemp\\a\\b").held = true; },
     Nothing, nullptr, "C:\\UserTemp\\a\\b"},
    {"vanished files and folders",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\a\\c.dat");
         on.File("C:\\UserTemp\\d.dat");
     },
     [](Bounds& on) {
         platform::simulated::Disk::Erase(on.disk.At("C:\\UserTemp\\a"));
         platform::simulated::Disk::Erase(on.disk.At("C:\\UserTemp\\d.dat"));
     },
     "C:\\UserTemp\\a", nullptr},
    {"a path of more than 260 characters",
     [](Bounds& on) {
         std::string path = "C:\\UserTemp\\a";
         while (path.size() < 300) path += "\\12345678";
         on.File(path + "\\c.dat");
         on.File("C:\\UserTemp\\b\\c.dat");
     },
     Nothing, "C:\\UserTemp\\b", "C:\\UserTemp\\a"},
    {"names beyond the code page beside names that they would fit as wildcards",
     [](Bounds& on) {
         on.File("C:\\UserTemp\\日本.dat");
         on.File("C:\\UserTemp\\ab.dat");
         on.File("C:\\UserTemp\\cd.dat", 33);
     },
     [](Bounds& on) {
         on.frame.TickAll(false);
         on.list.SetTicked(0, true);
     },
     nullptr, "C:\\UserTemp\\ab.dat"},
};

void Try(const Shape& shape, bool intoBin) {
    CAPTURE(std::string(shape.name));
    CAPTURE(intoBin);
    Bounds on;
    on.intoBin = intoBin;
    shape.make(on);
    on.Search();
    REQUIRE(on.list.Count() > 0);
    on.NotePlaces();
    shape.meanwhile(on);
    CHECK(on.ChangedOutside() == Lines{});
    if (shape.gone) CHECK_FALSE(on.IsThere(shape.gone));
    if (shape.kept) CHECK(on.IsThere(shape.kept));
    CHECK(on.IsThere("D:\\data\\precious.txt"));
    CHECK(on.list.Count() == 0);
    CHECK(on.machine.messages.Shown().size() == 1);
}

}  // namespace

TEST_CASE("deleting leaves everything outside of the rows as it is, whatever the tree's shape") {
    for (const Shape& shape : Shapes) Try(shape, false);
}

TEST_CASE("moving to the recycle bin leaves everything outside of the rows as it is") {
    for (const Shape& shape : Shapes) Try(shape, true);
}

TEST_CASE_FIXTURE(Bounds,
                  "a ticked file behind a junction that was searched goes, as its row says") {
    disk.MakeLink("C:\\UserTemp\\link", "C:\\data");
    Search();
    NotePlaces();
    REQUIRE(list.Text(0) == "C:\\UserTemp\\link\\deep\\precious.tmp");
    REQUIRE(list.Ticked(0));
    CHECK(ChangedOutside() == Lines{});
    CHECK_FALSE(IsThere("C:\\data\\deep\\precious.tmp"));
    CHECK(IsThere("C:\\data\\deep"));
}

TEST_CASE_FIXTURE(Bounds, "a temp folder that is reached through a junction is cleaned") {
    disk.MakeLink("C:\\Short", "C:\\Profil");
    File("C:\\Profil\\Temp\\a.dat");
    File("C:\\Profil\\Temp\\sub\\b.dat");
    machine.systemFacts.tempPath = "C:\\Short\\Temp\\";
    Search();
    NotePlaces();
    CHECK(ChangedOutside() == Lines{});
    CHECK_FALSE(IsThere("C:\\Profil\\Temp\\a.dat"));
    CHECK_FALSE(IsThere("C:\\Profil\\Temp\\sub"));
}

TEST_CASE_FIXTURE(Bounds, "recent documents that are reached through a junction are cleaned") {
    disk.MakeLink("C:\\Short", "C:\\Profil");
    machine.shell.specialFolders[8] = "C:\\Short\\Recent";
    File("C:\\Profil\\Recent\\a.lnk");
    frame.chkCleanUserTempFolder.SetValue(0);
    Tick(frame.chkRecentDocFolder);
    Search();
    NotePlaces();
    CHECK(ChangedOutside() == Lines{});
    CHECK_FALSE(IsThere("C:\\Profil\\Recent\\a.lnk"));
}

TEST_CASE_FIXTURE(Bounds, "a temp folder of Windows that is a junction is cleaned") {
    machine.systemFacts.windowsDirectory = "C:\\WIN";
    disk.MakeFolder("C:\\WIN");
    disk.MakeLink("C:\\WIN\\Temp", "D:\\WinTemp");
    File("D:\\WinTemp\\sub\\b.dat");
    frame.chkCleanUserTempFolder.SetValue(0);
    Search();
    NotePlaces();
    CHECK(ChangedOutside() == Lines{});
    CHECK_FALSE(IsThere("D:\\WinTemp\\sub"));
}

TEST_CASE_FIXTURE(Bounds, "a folder whose links cannot be taken out is not given to the shell") {
    intoBin = true;
    disk.MakeLink("C:\\UserTemp\\a\\link", "C:\\data").held = true;
    Search();
    NotePlaces();
    frame.TickAll(false);
    list.SetTicked(list.Count() - 1, true);
    CHECK(ChangedOutside() == Lines{});
    CHECK(IsThere("C:\\data\\precious.tmp"));
    CHECK(machine.journal.Calls("SHFileOperationA").empty());
}
