#pragma once

#include <string>

#include "endtoend/automation.h"
#include "platform/win32/handle.h"

namespace endtoend {

// A program started by us. What still runs at the end of this object is ended by its handle.
class Program : public Application {
  public:
    // `arguments` is the command line behind the program's own name and one blank, to the letter.
    explicit Program(const std::string& path, const std::string& arguments = "");
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool Running() const;

    // Waits until the process has ended by itself; its exit code.
    DWORD WaitForEnd() const;

    // Closes the main window and waits for the end.
    void CloseAndWait() const;

    // Waits until the process has nothing to do for the first time.
    void WaitIdle() const;

    // Leaves the process alone from now on, also at the end of this object.
    void LetGo() { process_.Close(); }

  private:
    explicit Program(const PROCESS_INFORMATION& started);

    platform::win32::KernelHandle process_;
};

}  // namespace endtoend
