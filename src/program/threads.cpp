// Newer run-time libraries bring along what they need for several threads, and with it functions
// that Windows XP lacks, upon which it would not start the program. The program has one thread:
// here are a guard of static objects that waits for nobody, and a function for the library's own
// threads, which are never made.
#include <cstdint>

namespace {

// The first byte of a guard tells that its object is made.
std::int8_t& Made(std::int64_t* guard) {
    return *reinterpret_cast<std::int8_t*>(guard);
}

unsigned long __attribute__((stdcall)) NoThreadId(void*) {
    return 0;
}

}  // namespace

extern "C" {

int __cxa_guard_acquire(std::int64_t* guard) {
    return Made(guard) == 0;
}

void __cxa_guard_release(std::int64_t* guard) {
    Made(guard) = 1;
}

void __cxa_guard_abort(std::int64_t*) {}

// Found here, it is not imported from the system.
extern unsigned long(__attribute__((stdcall)) * const GetThreadIdOfNobody)(void*) asm(
    "__imp__GetThreadId@4");
unsigned long(__attribute__((stdcall)) * const GetThreadIdOfNobody)(void*) = NoThreadId;
}
