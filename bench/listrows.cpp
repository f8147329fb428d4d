// A list view's rows on the simulated machine: added, sorted, added to a sorted list, removed one
// by one. Call: listrows ROWS; bench/run counts the instructions of each.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/simulated/machine.h"
#include "toolkit/listview.h"

namespace {

struct Bench {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    toolkit::ListView& list =
        form.Add<toolkit::ListView>("lvwFiles", toolkit::ListViewStyle{.checkBoxes = true});
    int rows;

    explicit Bench(int wanted) : rows(wanted) {
        for (const char* header : {"Name", "Größe (bytes)", "Typ", "Zuletzt geändert"}) {
            list.AddColumn(header);
        }
        machine.journal.Record(false);
        form.Load();
    }

    // The names come in no order, as a disk has them.
    std::string NameOf(int row) const {
        const auto mixed = static_cast<unsigned>(row) * 2654435761u;
        return "C:\\Dokumente und Einstellungen\\Besitzer\\~" + std::to_string(mixed) + ".tmp";
    }

    void Fill() {
        for (int row = 0; row < rows; ++row) {
            list.AddRow(NameOf(row));
            const int last = list.Count() - 1;
            list.SetText(last, 1, "4096");
            list.SetText(last, 2, "TMP-Datei");
            list.SetText(last, 3, "21.11.2006 16:05:09");
            list.SetTicked(last, true);
        }
    }
};

}  // namespace

extern "C" {

[[gnu::noinline]] void MeasuredFill(Bench& bench) {
    bench.Fill();
}

[[gnu::noinline]] void MeasuredSort(Bench& bench) {
    bench.list.SetSorted(true);
}

[[gnu::noinline]] void MeasuredFirstRowRemoval(Bench& bench) {
    for (int row = 0; row < bench.rows; ++row) bench.list.RemoveRow(0);
}

[[gnu::noinline]] void MeasuredSortedFill(Bench& bench) {
    bench.Fill();
}
}

int main(int count, char** words) {
    if (count != 2) return 2;
    Bench bench(std::atoi(words[1]));
    MeasuredFill(bench);
    MeasuredSort(bench);
    MeasuredFirstRowRemoval(bench);
    MeasuredSortedFill(bench);
    std::printf("%d\n", bench.list.Count());
    return 0;
}
