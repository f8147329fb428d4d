#pragma once

#include <string>
#include <string_view>

namespace contract {

// The command line of the suite's second program, contract_child.exe, which lies beside it:
//   sleep MILLISECONDS    ends after that time
//   line FILE ...         writes its whole command line, as the program service tells it, into FILE
//   style FILE            writes what its starter asked of its window into FILE
//   unix PROGRAM ...      starts a program in /bin of the system around Wine
//   end FILE              ends itself through the program service and then writes into FILE
std::string ChildCommand(std::string_view arguments);

}  // namespace contract
