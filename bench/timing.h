#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

namespace bench {

// How long the work takes.
template <typename Work>
double Milliseconds(Work&& work) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return 1e3 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

// Of at least one value.
inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace bench
