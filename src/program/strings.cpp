// Newer standard libraries leave one part of their strings to the library itself, and the program
// gets the whole of the library's strings along with it, a tenth of the executable. Made here, that
// part comes alone.
#include <string>

#if defined(_GLIBCXX_RELEASE) && _GLIBCXX_RELEASE >= 13

namespace std {

template void string::_M_replace_cold(char*, size_type, const char*, const size_type,
                                      const size_type);
template void wstring::_M_replace_cold(wchar_t*, size_type, const wchar_t*, const size_type,
                                       const size_type);

}  // namespace std

#endif
