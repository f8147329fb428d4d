// What hangs on the libraries of Windows itself, of which Wine has its own.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "contract/machine.h"
#include "controls/ctooltip.h"
#include "platform/internetcache.h"
#include "platform/shell.h"

// The window keeps the lower half of the number, and may take that for a negative one.
TEST_CASE("help texts that are to stay for 3320000 milliseconds can be read at leisure") {
    contract::TestMachine machine;
    controls::cToolTip tips(machine.Services().toolTips);
    tips.SetVisibleTime(3320000);
    CHECK(machine.LookAtTips(tips.Window()).visibleTime >= 20000);
}

TEST_CASE("the shell calls a folder by the word that the removal knows folders by") {
    contract::TestMachine machine;
    const std::string folder = machine.FilePath("folder");
    machine.MakeFolder(folder);
    const std::string type = machine.Services().shell.TypeName(folder, FILE_ATTRIBUTE_DIRECTORY);
    // Wine's word is another one, or none.
    CHECK((type == "Dateiordner" || !machine.IsRealXp()));
}

TEST_CASE("the cache knows as much by the pattern 0 as by none, or nothing by it") {
    contract::TestMachine machine;
    auto& cache = machine.Services().internetCache;
    const auto ask = [&](const char* pattern) {
        std::uint32_t size = 0;
        platform::InternetCache::Handle search = 0;
        const std::uint32_t code = cache.FindFirst(pattern, 0, size, search);
        cache.CloseSearch(search);
        return code;
    };
    constexpr std::uint32_t NoMoreItems = 259;
    CHECK(ask("0") == (machine.IsRealXp() ? ask(nullptr) : NoMoreItems));
}

TEST_CASE("the shell has its sheet of properties under number 178") {
    const HMODULE shell = LoadLibraryW(L"shell32.dll");
    const bool isThere = GetProcAddress(shell, MAKEINTRESOURCEA(178)) != nullptr;
    CHECK(isThere);
    FreeLibrary(shell);
}
