// What the registry tells of installed software, and what the dialog's buttons do by it.
#include <map>
#include <optional>

#include "controls/chameleonbutton.h"
#include "dialogs/frminstalledsoftware.h"
#include "fuzz/target.h"
#include "platform/simulated/machine.h"
#include "registry/registry.h"
#include "runtime/encoding.h"
#include "runtime/text.h"
#include "toolkit/controls.h"
#include "toolkit/listview.h"

namespace fuzz {
namespace {

using platform::simulated::StoredValue;

constexpr platform::Registry::Key Machinewide = platform::Registry::LocalMachine;
constexpr char EntriesKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
constexpr char BesideKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

using Row = std::vector<std::string>;

void PutEntryValue(platform::simulated::Registry& registry, const std::string& key,
                   const char* name, Input& bytes) {
    const std::size_t type = bytes.Below(16);
    if (type == 15) return;
    registry.Put(Machinewide, key, name,
                 {static_cast<std::uint32_t>(type > 11 ? 1 : type), BytesOf(bytes.Piece())});
}

// A text without its last byte and up to its first NUL; a number in decimal.
std::string ShownText(const std::optional<StoredValue>& value, const platform::Machine& machine) {
    if (!value) return "";
    std::string bytes(value->bytes.begin(), value->bytes.end());
    if (value->type == platform::Registry::Dword ||
        value->type == platform::Registry::BigEndianDword) {
        if (bytes.size() > 4) return "";
        bytes.resize(4);
        if (value->type == platform::Registry::BigEndianDword) {
            std::reverse(bytes.begin(), bytes.end());
        }
        std::uint32_t number = 0;
        for (std::size_t i = 4; i-- > 0;) {
            number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
        }
        return std::to_string(static_cast<std::int32_t>(number));
    }
    if (!platform::simulated::IsTextType(value->type)) return "";
    if (!bytes.empty()) bytes.pop_back();
    std::string text = runtime::FromWestern(bytes);
    if (value->type == platform::Registry::ExpandString) {
        text = machine.systemFacts.ExpandEnvironment(text);
    }
    return text.substr(0, text.find('\0'));
}

// A name as long as the buffer ends the list.
std::vector<Row> RowsOf(platform::simulated::Machine& machine) {
    std::vector<Row> rows;
    platform::Registry& registry = machine.registry;
    platform::Registry::Key key = 0;
    if (registry.Open(Machinewide, EntriesKey, platform::Registry::MayDoAll, key) != 0) return rows;
    std::string name;
    for (std::uint32_t i = 0; registry.EnumerateKey(key, i, name) == 0; ++i) {
        const std::string path = EntriesKey + ('\\' + name);
        const auto text = [&](const char* value) {
            return ShownText(machine.registry.Value(Machinewide, path, value), machine.services);
        };
        const Row row{text("DisplayName"), name, text("UninstallString")};
        if (!row[0].empty() && !row[2].empty()) rows.push_back(row);
    }
    registry.Close(key);
    return rows;
}

std::vector<Row> Sorted(std::vector<Row> rows) {
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::vector<Row> ListedRows(const toolkit::ListView& list) {
    std::vector<Row> rows;
    for (int i = 0; i < list.Count(); ++i) {
        rows.push_back({list.Text(i, 0), list.Text(i, 1), list.Text(i, 2)});
    }
    return rows;
}

// Whether all that has gone lay in a key that a selected row shows as its name, and nothing came.
bool OnlyShownKeysGone(const std::map<std::string, StoredValue>& before,
                       const std::map<std::string, StoredValue>& after,
                       const std::vector<Row>& selected) {
    const std::string path = "HKLM\\" + std::string(EntriesKey) + '\\';
    for (const auto& entry : before) {
        const std::string& place = entry.first;
        const auto found = after.find(place);
        if (found != after.end() && found->second == entry.second) continue;
        const bool isShown = std::any_of(selected.begin(), selected.end(), [&](const Row& row) {
            const std::string gone = path + row[0] + '|';
            return runtime::EqualsIgnoringCase(place.substr(0, gone.size()), gone);
        });
        if (!isShown) return false;
    }
    return std::all_of(after.begin(), after.end(), [&](const auto& entry) {
        // A key whose last sub-key has gone stands there by itself.
        return before.contains(entry.first) || entry.second.type == 0xFFFFFFFF;
    });
}

}  // namespace

FUZZ_TARGET(uninstall) {
    Input bytes(input);
    const std::size_t action = bytes.Below(4);
    const std::uint8_t selection = bytes.Byte();
    const bool agrees = bytes.Flag();
    platform::simulated::Machine machine;
    machine.journal.Record(false);
    machine.registry.Put(Machinewide, BesideKey, "Alpha", {1, {'x', 0}});
    machine.registry.MakeKey(Machinewide, EntriesKey);
    while (!bytes.AtEnd()) {
        const std::string key = EntriesKey + ('\\' + runtime::FromWestern(bytes.Piece()));
        machine.registry.MakeKey(Machinewide, key);
        PutEntryValue(machine.registry, key, "DisplayName", bytes);
        PutEntryValue(machine.registry, key, "UninstallString", bytes);
    }
    const auto rows = RowsOf(machine);
    const auto before = machine.registry.Dump();
    const int handles = machine.registry.OpenHandles();

    dialogs::frmInstalledSoftware form(machine.services);
    form.Show();
    auto& list = form.Find<toolkit::ListView>("lvwSoftware");
    Require(Sorted(ListedRows(list)) == Sorted(rows), "other rows");
    Require(form.Find<toolkit::Label>("lblFound").Caption() ==
                "Gefunden: " + std::to_string(rows.size()) + " Anwendungen",
            "another count");
    Require(machine.registry.Dump() == before, "listing writes");
    std::vector<Row> selected;
    for (int i = 0; i < list.Count() && i < 8; ++i) {
        list.SetSelected(i, (selection >> i & 1) != 0);
        if (list.Selected(i)) selected.push_back(ListedRows(list)[static_cast<std::size_t>(i)]);
    }
    const std::string title = selected.empty() ? "" : list.Text(list.SelectedRow());
    machine.messages.AnswerAll(title + " löschen",
                               agrees ? platform::message::Yes : platform::message::No);
    machine.processes.whenStarted = [](const std::string&) {
        return platform::simulated::Processes::Run{0, 2};
    };
    std::size_t started = 0;
    if (action == 1) {
        form.Find<controls::chameleonButton>("cmdDeleteItem").Press();
        const auto gone = agrees ? selected : std::vector<Row>();
        Require(OnlyShownKeysGone(before, machine.registry.Dump(), gone), "another key is gone");
        Require(Sorted(ListedRows(list)) == Sorted(RowsOf(machine)), "the list is not read anew");
    } else if (action == 2) {
        form.Find<controls::chameleonButton>("cmdUninstall").Press();
        started = selected.size();
        for (std::size_t i = 0; i < std::min(started, machine.processes.launched.size()); ++i) {
            RequireSame(machine.processes.launched[i].commandLine, selected[i][2], "the command");
        }
        for (int tick = 0; tick < 4; ++tick) {
            machine.clock.Advance(dialogs::frmInstalledSoftware::ProcessInterval);
        }
        Require(machine.clock.RunningTimers() == 0, "the watch runs on");
        Require(machine.registry.Dump() == before, "uninstalling writes");
    } else if (action == 3) {
        form.Find<controls::chameleonButton>("cmdFindInvalidLinks").Press();
        Require(list.Count() == 0, "rows of invalid entries");
    }
    Require(machine.processes.launched.size() == started, "something else is started");
    form.Unload();
    // Each refresh costs a handle a value, for at most two values an entry.
    Require(
        machine.registry.OpenHandles() - handles <= static_cast<int>(3 * 2 * (before.size() + 1)),
        "handles are left open");
}

}  // namespace fuzz
