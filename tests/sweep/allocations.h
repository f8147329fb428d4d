#pragma once

#include <cstddef>

namespace sweep_test {

// How many blocks of memory the program has asked for since the last call of either of these.
std::size_t CountAllocations();

// The n-th block from now on cannot be had (std::bad_alloc), once; 0 is none.
void FailAllocation(std::size_t n);

}  // namespace sweep_test
