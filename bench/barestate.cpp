// The yardstick for the console program: reads every value of the catalogue in the plainest way and
// prints a line for each.
#include <windows.h>

#include <cstdio>

namespace {

struct Place {
    HKEY root;
    const char* rootName;
    const char* key;
    const char* value;
};

const HKEY HKCR = HKEY_CLASSES_ROOT;
const HKEY HKCU = HKEY_CURRENT_USER;
const HKEY HKLM = HKEY_LOCAL_MACHINE;

const Place places[] = {
#include "bench/barestateplaces.h"
};

}  // namespace

int main() {
    // All of it in one call of the system, wherever it goes.
    std::setvbuf(stdout, nullptr, _IOFBF, 1 << 16);
    for (const Place& place : places) {
        HKEY key = nullptr;
        DWORD type = REG_NONE;
        BYTE data[4096];
        DWORD size = sizeof data;
        LONG result = RegOpenKeyExA(place.root, place.key, 0, KEY_QUERY_VALUE, &key);
        if (result == ERROR_SUCCESS) {
            result = RegQueryValueExA(key, place.value, nullptr, &type, data, &size);
            RegCloseKey(key);
        }
        std::printf("%s\\%s [%s] %ld %lu", place.rootName, place.key,
                    *place.value ? place.value : "@", result, type);
        for (DWORD i = 0; result == ERROR_SUCCESS && i < size; ++i) std::printf(" %02x", data[i]);
        std::printf("\n");
    }
    return 0;
}
