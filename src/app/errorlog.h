#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/machine.h"
#include "runtime/failure.h"

namespace app {

// The program's one error report: a record in Quillmore.log beside the program and a message.
class ErrorLog {
  public:
    // `version` is the text that the record's first line carries.
    ErrorLog(const platform::Machine& machine, const std::string& version)
        : machine_(machine), version_(version) {}

    // Appends one record and shows a critical message box. A log that cannot be written costs the
    // record but never the message. Number 32755, a common dialog's cancel, leaves no trace at
    // all. No failure gets out of here.
    void LogError(int number, std::string_view description, std::string_view source,
                  std::string_view procedure) const;

    // The report policy: runs the body; a failure is logged under the procedure's name and ends
    // the body there.
    void Report(std::string_view procedure, const std::function<void()>& body) const;

  private:
    void WriteRecord(int number, std::string_view description, std::string_view source,
                     std::string_view procedure) const;

    platform::Machine machine_;
    const std::string& version_;
};

}  // namespace app
