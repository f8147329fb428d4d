// The program by keyboard and mouse alone, as a person has them.
#include <windows.h>

#include <cstdio>
#include <exception>

#include "endtoend/hands/hand.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

void Walk() {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const HWND form = program.Wait("frmMain");
    Until("the window in front", [&] { return See().front == form && See().focus; });
    std::printf("%s\n", Describe(See()).c_str());
    for (int presses = 0; presses < 5; ++presses) {
        const HWND before = See().focus;
        Type(VK_TAB);
        Until("the next control", [&] { return See().focus != before; });
        std::printf("Tab: %s\n", Describe(See()).c_str());
    }
}

}  // namespace
}  // namespace endtoend

int main() {
    try {
        endtoend::Walk();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "hands: %s\n", failure.what());
        return 1;
    }
}
