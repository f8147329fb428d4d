#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace contract {

// Uses the next folder dialog of this thread from a timer: leaves it as it opened, notes what it
// shows and closes it.
class FolderUser {
  public:
    explicit FolderUser(bool ok);
    ~FolderUser();
    FolderUser(const FolderUser&) = delete;
    FolderUser& operator=(const FolderUser&) = delete;

    int dialogs = 0;
    // The texts of the dialog's labels, the title among them.
    std::vector<std::string> labels;
    HWND owner = nullptr;

  private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
    static BOOL CALLBACK Found(HWND window, LPARAM self);
    static BOOL CALLBACK Read(HWND child, LPARAM self);

    bool ok_;
    UINT_PTR timer_;
};

}  // namespace contract
