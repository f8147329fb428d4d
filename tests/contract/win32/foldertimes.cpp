// Times of files as the system itself converts them.
#include <windows.h>

#include <doctest/doctest.h>

#include "platform/win32/folders.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace {

FILETIME DayTime(WORD year, WORD month, WORD day) {
    const SYSTEMTIME parts = {year, month, 0, day, 12, 34, 56, 0};
    FILETIME moment{};
    SystemTimeToFileTime(&parts, &moment);
    return moment;
}

platform::LocalTime AsTheSystemTells(const FILETIME& moment) {
    FILETIME local{};
    SYSTEMTIME parts{};
    FileTimeToLocalFileTime(&moment, &local);
    FileTimeToSystemTime(&local, &parts);
    return {parts.wYear, parts.wMonth, parts.wDay, parts.wHour, parts.wMinute, parts.wSecond};
}

}  // namespace

TEST_CASE("a file's time is told as the system converts it, in summer, in winter and long ago") {
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    const std::wstring folder = std::wstring(temp) + L"quillmore-times";
    const std::wstring file = folder + L"\\a";
    CreateDirectoryW(folder.c_str(), nullptr);
    for (const FILETIME& moment :
         {DayTime(2004, 7, 1), DayTime(2004, 1, 1), DayTime(1980, 1, 1), DayTime(2099, 12, 31)}) {
        {
            const platform::win32::FileHandle made(
                CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
            REQUIRE(SetFileTime(made.Get(), nullptr, nullptr, &moment));
        }
        platform::win32::Folders folders;
        platform::win32::Folders bySearch(nullptr);
        for (auto* way : {&folders, &bySearch}) {
            const auto listed = way->List(platform::win32::FromWide(folder));
            REQUIRE(listed.size() == 1);
            CHECK(listed[0].modified == AsTheSystemTells(moment));
        }
        const auto found = folders.Find(platform::win32::FromWide(file));
        REQUIRE(found);
        CHECK(found->modified == AsTheSystemTells(moment));
    }
    DeleteFileW(file.c_str());
    RemoveDirectoryW(folder.c_str());
}
