#pragma once

#include <string>
#include <vector>

namespace platform {
class WideRegistry;
struct Machine;
}  // namespace platform

namespace cmd {

class Surroundings;

enum ExitCode {
    Fine = 0,
    // Only plan: something would change.
    Differs = 1,
    WrongInput = 2,
    // A file, or a place in the registry; all the rest has been done.
    NotAll = 3,
    WrongSystem = 4,
    RefusedByUser = 5,
};

// Everything that QuillmoreCmd.exe does, by the arguments behind its name; returns its exit code.
// Of the machine only the registry is ever written, through `wide`, and files through `around`.
int Run(const std::vector<std::string>& arguments, const platform::Machine& machine,
        platform::WideRegistry& wide, Surroundings& around);

}  // namespace cmd
