#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/machine.h"

namespace tools {

// Opens the tool for restore points. Blocks until it is closed; no event gets through meanwhile.
void WaitForRestoreTool(const platform::Machine& machine);

// Starts the system's own tools. Nothing but the restore tool is waited for.
class Launchers {
  public:
    // Runs the body and reports a failure of it under the procedure's name.
    using Report =
        std::function<void(std::string_view procedure, const std::function<void()>& body)>;

    Launchers(const platform::Machine& machine, Report report)
        : machine_(machine), report_(std::move(report)) {}

    // Starts a program below the Windows directory. `Filename` begins with a backslash and may
    // carry arguments. The path is not put into quotes, also where it has blanks.
    void LoadExtern(std::string_view Filename) const;

    // Has the shell open a file that it finds by itself or in System32. A file that it does not
    // find goes unnoticed, since the shell's answer is not looked at.
    void LoadExternMSC(std::string_view Filename, std::string_view Parameter) const;

    // The same for the one console that lies in System32\com.
    void LoadExternMSC2(std::string_view Filename) const;

    // Asks for the installation CD before the system's files are checked.
    void CheckSystemFiles() const;

    // Opens the sheet of the system's properties.
    void OpenSystemProperties() const;

    void OpenRestorePoint() const { WaitForRestoreTool(machine_); }

    // What the label of the configuration tool does, once more and under a name of its own. No
    // control calls it, on purpose: it is kept for one that may.
    void cmdMSConfig_Click() const;

  private:
    std::string WindowsDirectory() const;
    void Start(std::string_view filename) const;
    void OpenIn(std::string_view folder, std::string_view filename,
                std::string_view parameter) const;

    platform::Machine machine_;
    Report report_;
};

}  // namespace tools
