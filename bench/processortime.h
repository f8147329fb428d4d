#pragma once

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <string_view>
#include <vector>

#include "timing.h"

// Processor time as Linux counts it, which is what a program takes even while others keep the
// machine busy: to the nanosecond, and Wine's server, which does much of the work, along with it.
namespace bench {

// "" where there is no such file.
inline std::string ContentOf(const std::wstring& path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "";
    std::string content;
    char piece[4096];
    DWORD length = 0;
    while (ReadFile(file, piece, sizeof piece, &length, nullptr) && length > 0) {
        content.append(piece, length);
    }
    CloseHandle(file);
    return content;
}

// Folders named by the number of a process. "self" is the server, for it is who opens files.
inline constexpr wchar_t Processes[] = L"\\\\?\\unix\\proc\\";

// The prefix is told in the variables that a process was started with.
inline std::string PrefixOf(const std::wstring& process) {
    const std::string variables = ContentOf(Processes + process + L"\\environ");
    const std::size_t start = variables.find("WINEPREFIX=");
    return start == std::string::npos
               ? ""
               : variables.substr(start, variables.find('\0', start) - start);
}

inline double MillisecondsOf(const std::wstring& process) {
    const std::string counted = ContentOf(Processes + process + L"\\schedstat");
    if (counted.empty()) {
        std::puts("bench: Linux tells no processor time");
        std::exit(1);
    }
    return std::atof(counted.c_str()) / 1e6;
}

inline double ServerMilliseconds() {
    return MillisecondsOf(L"self");
}

// The process of Linux that runs the program of that name in this prefix, and has one thread.
inline std::wstring ProcessOf(std::string_view program) {
    constexpr std::size_t LongestName = 15;
    const std::string name = std::string(program.substr(0, LongestName)) + '\n';
    const std::string prefix = PrefixOf(L"self");
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((Processes + std::wstring(L"*")).c_str(), &found);
    std::wstring process;
    do {
        const std::wstring number = found.cFileName;
        if (number[0] < L'0' || number[0] > L'9') continue;
        if (ContentOf(Processes + number + L"\\comm") == name && PrefixOf(number) == prefix) {
            process = number;
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
    if (process.empty()) {
        std::printf("bench: %s does not run\n", std::string(program).c_str());
        std::exit(1);
    }
    return process;
}

// What a piece of work took.
struct Cost {
    double processor = 0;
    double clock = 0;
};

// Work of this program itself.
template <typename Work>
Cost CostOf(const std::wstring& process, Work&& work) {
    const double server = ServerMilliseconds();
    const double own = MillisecondsOf(process);
    Cost cost;
    cost.clock = Milliseconds(work);
    cost.processor = MillisecondsOf(process) - own + ServerMilliseconds() - server;
    return cost;
}

struct Costs {
    std::vector<double> processor;
    std::vector<double> clock;

    void Add(const Cost& cost) {
        processor.push_back(cost.processor);
        clock.push_back(cost.clock);
    }
};

// A row of the table: medians of processor time, beside them the ratio by the clock. `limit` is its
// name in limits.txt.
inline void Report(const char* limit, const char* what, const Costs& ours, const Costs& bare,
                   const std::string& atTwoSizes = "") {
    std::printf("%s|%s|%.2f|%.2f|ms|%.2f|%s\n", limit, what, Median(ours.processor),
                Median(bare.processor), Median(ours.clock) / Median(bare.clock),
                atTwoSizes.c_str());
}

}  // namespace bench
