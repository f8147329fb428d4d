#include "contract/win32/child.h"
#include "platform/win32/program.h"

namespace contract {

std::string ChildCommand(std::string_view arguments) {
    return '"' + platform::win32::Program().Directory() + "\\contract_child.exe\" " +
           std::string(arguments);
}

}  // namespace contract
