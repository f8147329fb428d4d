// How the standard library's own checks fail in this program. The library's way makes exceptions
// that hold a string of an older kind, and with it comes all code for that kind and the new one: a
// tenth of the program. A text that outgrows its limit counts as memory that is not there; all else
// is a mistake in the program, told in the library's words as they stand.
#include <functional>
#include <new>

#include "runtime/mistake.h"

namespace std {

void __throw_bad_alloc() {
    throw bad_alloc();
}

void __throw_bad_array_new_length() {
    throw bad_alloc();
}

void __throw_length_error(const char*) {
    throw bad_alloc();
}

void __throw_logic_error(const char* what) {
    throw runtime::Mistake(what);
}

void __throw_out_of_range(const char* what) {
    throw runtime::Mistake(what);
}

void __throw_out_of_range_fmt(const char* what, ...) {
    throw runtime::Mistake(what);
}

void __throw_bad_function_call() {
    throw runtime::Mistake("bad_function_call");
}

}  // namespace std
