// Measures the console program's "state" from start to end, against a bare program that reads the
// same values: interleaved pairs, medians, ratio.
// Call: state <QuillmoreCmd.exe> <barestate.exe> [pairs]
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

#include "timing.h"

namespace {

constexpr double Limit = LIMIT_STATE;

[[noreturn]] void Fail(const char* what) {
    std::printf("state: %s (error %lu)\n", what, GetLastError());
    std::exit(1);
}

// Runs the program to its end, with its output going there.
void Run(std::string commandLine, HANDLE output) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = startup.hStdOutput = startup.hStdError = output;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                        &startup, &process)) {
        Fail("cannot start the program");
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    if (code != 0) Fail("the program failed");
}

HANDLE Inherited(const char* path, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const HANDLE file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) Fail("no file for the output");
    return file;
}

std::string OutputOf(const std::string& commandLine) {
    const char path[] = "state-output.txt";
    const HANDLE file = Inherited(path, CREATE_ALWAYS);
    Run(commandLine, file);
    std::string text(GetFileSize(file, nullptr), '\0');
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    DWORD length = 0;
    ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &length, nullptr);
    CloseHandle(file);
    DeleteFileA(path);
    return text;
}

std::string InSmallLetters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// Each line of the bare program is a place, as the console program's lines name it among others.
std::vector<std::string> BarePlaces(const std::string& output) {
    std::vector<std::string> places;
    for (std::size_t start = 0; start < output.size();) {
        const std::size_t end = output.find("\r\n", start);
        places.push_back(output.substr(start, output.find("] ", start) + 1 - start));
        start = end + 2;
    }
    return places;
}

std::vector<std::string> OurPlaces(const std::string& output) {
    std::vector<std::string> places;
    for (std::size_t bracket = 0; (bracket = output.find(" [", bracket)) != std::string::npos;
         ++bracket) {
        const std::size_t start = output.rfind(" | ", bracket) + 3;
        if (output[start] == 'H' && output[start + 1] == 'K') {
            places.push_back(output.substr(start, output.find(']', bracket) + 1 - start));
        }
    }
    return places;
}

std::vector<std::string> Sorted(std::vector<std::string> places) {
    for (std::string& place : places) place = InSmallLetters(place);
    std::sort(places.begin(), places.end());
    return places;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) Fail("call: state <QuillmoreCmd.exe> <barestate.exe> [pairs]");
    const std::string ours = std::string("\"") + arguments[1] + "\" state";
    const std::string bare = std::string("\"") + arguments[2] + '"';
    const int pairs = count > 3 ? std::atoi(arguments[3]) : 40;

    const auto ourPlaces = Sorted(OurPlaces(OutputOf(ours)));
    const auto barePlaces = Sorted(BarePlaces(OutputOf(bare)));
    std::vector<std::string> others;
    std::set_symmetric_difference(ourPlaces.begin(), ourPlaces.end(), barePlaces.begin(),
                                  barePlaces.end(), std::back_inserter(others));
    for (const std::string& place : others) std::printf("only one reads %s\n", place.c_str());
    if (!others.empty() || ourPlaces.empty()) Fail("the bare program reads other values");

    const HANDLE nowhere = Inherited("NUL", OPEN_EXISTING);
    std::vector<double> ourTimes;
    std::vector<double> bareTimes;
    for (int i = 0; i < pairs; ++i) {
        ourTimes.push_back(bench::Milliseconds([&] { Run(ours, nowhere); }));
        bareTimes.push_back(bench::Milliseconds([&] { Run(bare, nowhere); }));
    }
    const double ratio = bench::Median(ourTimes) / bench::Median(bareTimes);
    std::printf("state         %zu values ours %.1f ms bare %.1f ms ratio %.2f limit %.2f %s\n",
                ourPlaces.size(), bench::Median(ourTimes), bench::Median(bareTimes), ratio, Limit,
                ratio <= Limit ? "ok" : "TOO SLOW");
    return ratio <= Limit ? 0 : 1;
}
