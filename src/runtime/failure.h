#pragma once

#include <exception>
#include <string>
#include <utility>

namespace runtime {

// The platform's own failure numbers; each has its German text in failure.cpp.
enum FailureNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    TypeMismatch = 13,
    UserInterrupt = 18,
    BadFileNumber = 52,
    FileNotFound = 53,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidPropertyValue = 380,
    CannotCreateObject = 429,
    AutomationError = 440,
    DllFunctionNotFound = 453,
    IndexOutOfBounds = 35600,
};

// The one exception of the program. A procedure that meets it takes one of three policies at its
// head: report it (app/errorlog.h), show a message of its own, or skip the statement (Skip below).
// A procedure without a policy lets it pass to its caller. Lack of memory (std::bad_alloc) is
// neither skipped nor logged: it ends the event, or the start.
class Failure : public std::exception {
  public:
    // With the platform's German text for the number and the program as source.
    explicit Failure(int failureNumber);
    Failure(int failureNumber, std::string failureDescription, std::string failureSource);

    const char* what() const noexcept override { return description.c_str(); }

    int number;
    std::string description;
    std::string source;
};

// The German text of a failure number; for an unknown number the platform's general one.
std::string DescriptionOf(int failureNumber);

// The skip policy: one statement, passed over in silence when it fails, so that the next one runs.
// Returns whether the statement ran to its end.
template <typename Statement>
bool Skip(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

}  // namespace runtime
