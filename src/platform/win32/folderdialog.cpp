#include <windows.h>

#include <shlobj.h>

#include "platform/win32/eventguard.h"
#include "platform/win32/formhandles.h"
#include "platform/win32/idlist.h"
#include "platform/win32/shell.h"
#include "platform/win32/text.h"

namespace platform::win32 {

static_assert(FolderDialog::Initialised == BFFM_INITIALIZED &&
              FolderDialog::SelectionChanged == BFFM_SELCHANGED);
static_assert(FolderDialog::SetStatusText == BFFM_SETSTATUSTEXTA &&
              FolderDialog::SetSelection == BFFM_SETSELECTIONA);

namespace {

class OpenDialog final : public FolderDialog {
  public:
    OpenDialog(HWND window, PCIDLIST_ABSOLUTE selected) : window_(window), selected_(selected) {}

    void Send(std::uint32_t message, std::string_view text) override {
        const std::string bytes = ToAnsi(text);
        // The dialog takes a selection as a path, and not as an item, when told so by TRUE. For the
        // text of its status line it does not look at that.
        SendMessageA(window_, message, TRUE, reinterpret_cast<LPARAM>(bytes.c_str()));
    }
    std::optional<std::string> SelectedPath() const override { return PathOf(selected_); }

  private:
    HWND window_;
    PCIDLIST_ABSOLUTE selected_;
};

struct CallbackContext {
    const platform::Shell::FolderCallback& callback;
    platform::Messages& messages;
};

int CALLBACK Reported(HWND window, UINT message, LPARAM argument, LPARAM data) {
    const auto& context = *reinterpret_cast<const CallbackContext*>(data);
    // With the selection comes the item, with the other messages something else or nothing.
    const auto selected = message == BFFM_SELCHANGED ? reinterpret_cast<PCIDLIST_ABSOLUTE>(argument)
                                                     : PCIDLIST_ABSOLUTE{};
    GuardEvent(context.messages, [&] {
        OpenDialog dialog(window, selected);
        context.callback(dialog, message);
    });
    return 0;
}

}  // namespace

std::string Shell::BrowseForFolder(const toolkit::Form& owner, std::string_view title,
                                   std::uint32_t flags, const FolderCallback& callback) {
    EnterApartment();
    const std::string shownTitle = ToAnsi(title);
    const CallbackContext context{callback, messages_};
    char displayName[MAX_PATH];
    BROWSEINFOA browse = {};
    browse.hwndOwner = forms_.WindowOf(owner);
    browse.pszDisplayName = displayName;
    browse.lpszTitle = shownTitle.c_str();
    browse.ulFlags = flags;
    browse.lpfn = Reported;
    browse.lParam = reinterpret_cast<LPARAM>(&context);
    const IdList chosen(SHBrowseForFolderA(&browse));
    return PathOf(chosen.Get()).value_or("");
}

}  // namespace platform::win32
