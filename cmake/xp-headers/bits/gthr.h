// Newer standard libraries of the win32 thread model do not compile for a Windows without condition
// variables, because their headers name the type. It is declared for them here; the program itself
// is compiled for Windows XP before and behind it, and uses no threads.
#pragma GCC system_header
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0600
#include_next <bits/gthr.h>
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0501
