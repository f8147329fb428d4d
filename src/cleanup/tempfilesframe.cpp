#include "cleanup/tempfilesframe.h"

#include "platform/menus.h"
#include "toolkit/form.h"
#include "toolkit/listhelpers.h"

namespace cleanup {

using controls::chameleonButton;
using toolkit::CheckBox;
using toolkit::Label;

TempFilesFrame::TempFilesFrame(toolkit::Form& owner, const platform::Machine& machine)
    : form(owner),
      Frame8(form.Add<toolkit::Frame>("Frame8", "Temporäre Dateien")),
      chkScanAll(form.Add<CheckBox>("chkScanAll", "Alle lokalen Festplatten scannen")),
      chkDeleteThumbs(
          form.Add<CheckBox>("chkDeleteThumbs", "Bildvorschau Archive (Thumbs.db) löschen")),
      chkNullByteFiles(form.Add<CheckBox>("chkNullByteFiles", "Nach 0 Byte Dateien suchen")),
      // With the blank before the closing quotation mark, on purpose: scripts find it so.
      chkRecentDocFolder(form.Add<CheckBox>("chkRecentDocFolder",
                                            "Ordner \"Zuletzt verwendete Dokumente \" löschen")),
      chkCleanUserTempFolder(form.Add<CheckBox>(
          "chkCleanUserTempFolder", "Tempverzeichnis des angemeldeten Benutzers säubern")),
      chkMoveToRecycleBin(form.Add<CheckBox>("chkMoveToRecycleBin",
                                             "Gefundene Dateien in den Papierkorb verschieben")),
      drvSelect(form.Add<toolkit::DriveListBox>("drvSelect")),
      lblGesamt(form.Add<Label>("lblGesamt", "")),
      lblFreeDriveSpace(form.Add<Label>("lblFreeDriveSpace", "")),
      lblHinweisTemp(form.Add<Label>("lblHinweisTemp", "")),
      lvwFiles(form.Add<toolkit::ListView>("lvwFiles", toolkit::ListViewStyle{.checkBoxes = true})),
      lblScannedFiles(form.Add<Label>("lblScannedFiles", "", toolkit::LabelStyle::Path)),
      chkCleanRecycleBin(form.Add<CheckBox>("chkCleanRecycleBin", "Papierkorb leeren")),
      cmdCleanBinDirect(form.Add<chameleonButton>("cmdCleanBinDirect",
                                                  controls::Persisted{"TX=Sofort"}, machine.clock)),
      cmdSearchTempFiles(form.Add<chameleonButton>(
          "cmdSearchTempFiles", controls::Persisted{"TX=Suchen"}, machine.clock)),
      cmdCleanTempFiles(form.Add<chameleonButton>(
          "cmdCleanTempFiles", controls::Persisted{"TX=Dateien löschen"}, machine.clock)),
      mnuTempFiles{"mnuTempFiles",
                   {{"mnuSelectAll", "Alle markieren", [this] { TickAll(true); }},
                    {"mnuDeselectAll", "Alle Markierungen aufheben", [this] { TickAll(false); }}}},
      machine_(machine) {
    for (const char* header : {"Name", "Größe (bytes)", "Typ", "Zuletzt geändert"}) {
        lvwFiles.AddColumn(header);
    }
    cmdCleanTempFiles.SetEnabled(false);
    lvwFiles.onColumnClick = [this](int header) {
        toolkit::SortByHeader(lvwFiles, header, sortDescending_);
    };
    lvwFiles.onRightButton = [this] { OpenMenu(); };
}

void TempFilesFrame::InitFilesView() {
    for (int rows = lvwFiles.Count(); rows > 0; --rows) lvwFiles.RemoveRow(0);
}

void TempFilesFrame::TickAll(bool ticked) {
    for (int row = 0; row < lvwFiles.Count(); ++row) lvwFiles.SetTicked(row, ticked);
}

void TempFilesFrame::ShowProgress(std::string_view text) {
    lblScannedFiles.SetCaption(text);
    if (lblScannedFiles.View()) lblScannedFiles.View()->PaintNow();
}

void TempFilesFrame::OpenMenu() {
    if (lvwFiles.Count() == 0) return;
    mnuTempFiles.place = lvwFiles.MenuPlace();
    const toolkit::MenuItem* chosen = machine_.menus.Choose(mnuTempFiles);
    if (chosen && chosen->onClick) chosen->onClick();
}

toolkit::Box TempFilesFrame::Layout() const {
    using namespace toolkit;
    return InFrame(
        Frame8,
        Column({Grid(2, {Leaf(chkScanAll), Leaf(chkDeleteThumbs), Leaf(chkNullByteFiles),
                         Leaf(chkRecentDocFolder), Leaf(chkCleanUserTempFolder),
                         Leaf(chkMoveToRecycleBin)}),
                Row({Leaf(drvSelect), Stretch(Leaf(lblGesamt)), Stretch(Leaf(lblFreeDriveSpace))}),
                Leaf(lblHinweisTemp), Stretch(Leaf(lvwFiles)), Leaf(lblScannedFiles),
                Row({Leaf(chkCleanRecycleBin), Leaf(cmdCleanBinDirect), Filler(),
                     Leaf(cmdSearchTempFiles), Leaf(cmdCleanTempFiles)})}));
}

}  // namespace cleanup
