#include "cleanup/recyclebin.h"

#include "cleanup/drivespacelabels.h"
#include "cleanup/tempfilesframe.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "toolkit/form.h"

namespace cleanup {

void EmptyRecycleBin(platform::Shell& shell) {
    constexpr std::uint32_t noConfirmation = 1;
    shell.EmptyRecycleBin(noConfirmation);
}

void CleanBinDirect(TempFilesFrame& frame, const platform::Machine& machine) {
    using namespace platform::message;
    const std::string title = "Papierkorb von Laufwerk '" + frame.Drive() + "' löschen";
    if (machine.messages.Show("Inhalt des Papierkorbes löschen?", Question | YesNo, title) != Yes) {
        return;
    }
    {
        const toolkit::ScreenHourglass hourglass{machine.forms};
        frame.ShowProgress("Lösche Papierkorb von Laufwerk '" + frame.Drive() + "' ...");
        EmptyRecycleBin(machine.shell);
        frame.lblHinweisTemp.SetCaption("");
    }
    ShowDriveSpace(frame, machine);
    frame.lblScannedFiles.SetCaption("Löschen des Papierkorbs von Laufwerk '" + frame.Drive() +
                                     "' abgeschlossen!");
}

}  // namespace cleanup
