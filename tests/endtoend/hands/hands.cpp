// The program by real keys or by a real mouse alone, as a person has them: hands.exe keys|mouse
// [SECTION]
#include <cstdio>
#include <exception>
#include <string>

#include "endtoend/hands/walk.h"

int main(int count, char** words) {
    try {
        const std::string way = count > 1 ? words[1] : "";
        if (way != "keys" && way != "mouse") {
            std::fprintf(stderr, "usage: hands keys|mouse [PART OF A SECTION'S TITLE]\n");
            return 2;
        }
        return endtoend::Walk(way == "mouse", count > 2 ? words[2] : "").Run() ? 1 : 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "hands: %s\n", failure.what());
        return 1;
    }
}
