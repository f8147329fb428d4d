// Measures the console program's "state" from start to end, against a bare program that reads the
// same values: interleaved pairs, medians.
// Call: state <QuillmoreCmd.exe> <barestate.exe> [pairs]
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

#include "processortime.h"

namespace {

[[noreturn]] void Fail(const char* what) {
    std::printf("state: %s (error %lu)\n", what, GetLastError());
    std::exit(1);
}

struct Run {
    bench::Cost cost;
    std::string output;
};

// From the start of the program to the last of its output.
Run Measure(const std::string& path, const std::string& argument = "") {
    std::string commandLine = '"' + path + "\" " + argument;
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE reads = nullptr;
    HANDLE writes = nullptr;
    if (!CreatePipe(&reads, &writes, &inherited, 1 << 20)) Fail("no pipe");
    SetHandleInformation(reads, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = startup.hStdOutput = startup.hStdError = writes;
    PROCESS_INFORMATION process = {};
    Run run;
    const double before = bench::ServerMilliseconds();
    run.cost.clock = bench::Milliseconds([&] {
        if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED,
                            nullptr, nullptr, &startup, &process)) {
            Fail("cannot start the program");
        }
    });
    const double made = bench::ServerMilliseconds();
    const std::wstring number = bench::ProcessOf(path.substr(path.rfind('\\') + 1));
    const double found = bench::ServerMilliseconds();
    double own = 0;
    run.cost.clock += bench::Milliseconds([&] {
        ResumeThread(process.hThread);
        CloseHandle(writes);
        char piece[1 << 16];
        DWORD length = 0;
        while (ReadFile(reads, piece, sizeof piece, &length, nullptr)) {
            own = bench::MillisecondsOf(number);
            run.output.append(piece, length);
        }
    });
    run.cost.processor = own + bench::ServerMilliseconds() - found + made - before;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    CloseHandle(reads);
    if (code != 0) Fail("the program failed");
    return run;
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
    const std::string ours = arguments[1];
    const std::string bare = arguments[2];
    const int pairs = count > 3 ? std::atoi(arguments[3]) : 25;

    const auto ourPlaces = Sorted(OurPlaces(Measure(ours, "state").output));
    const auto barePlaces = Sorted(BarePlaces(Measure(bare).output));
    std::vector<std::string> others;
    std::set_symmetric_difference(ourPlaces.begin(), ourPlaces.end(), barePlaces.begin(),
                                  barePlaces.end(), std::back_inserter(others));
    for (const std::string& place : others) std::printf("only one reads %s\n", place.c_str());
    if (!others.empty() || ourPlaces.empty()) Fail("the bare program reads other values");

    bench::Costs ourCosts;
    bench::Costs bareCosts;
    for (int i = 0; i < pairs; ++i) {
        ourCosts.Add(Measure(ours, "state").cost);
        bareCosts.Add(Measure(bare).cost);
    }
    bench::Report("state",
                  ("QuillmoreCmd state, " + std::to_string(ourPlaces.size()) + " values").c_str(),
                  ourCosts, bareCosts);
    return 0;
}
