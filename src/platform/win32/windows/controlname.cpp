#include "platform/win32/windows/controlname.h"

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

constexpr char PropertyName[] = "ControlName";

}  // namespace

ControlName::ControlName(HWND window, std::string_view name)
    : window_(window), atom_(GlobalAddAtomA(ToAnsi(name).c_str())) {
    SetPropA(window_, PropertyName, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom_)));
}

ControlName::~ControlName() {
    RemovePropA(window_, PropertyName);
    GlobalDeleteAtom(atom_);
}

}  // namespace platform::win32
