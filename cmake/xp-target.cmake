# Everything that makes an executable one that XP starts.
add_compile_definitions(
  WINVER=0x0501 _WIN32_WINNT=0x0501 _WIN32_IE=0x0600 UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
# A Pentium of XP's years has no SSE2; the loader wants the version fields to say 5.1.
add_compile_options(-march=i686 -mtune=generic -ffunction-sections -fdata-sections)
# One thread: static objects need no guard against another. See src/threads.cpp.
add_compile_options(-fno-threadsafe-statics)
include_directories(SYSTEM ${CMAKE_CURRENT_LIST_DIR}/xp-headers)
# -fno-lto: only the program itself is optimised as a whole. The suites link the same rooms as they
# are, for that takes a quarter of a minute each.
add_link_options(-static -fno-lto -Wl,--gc-sections
  -Wl,--major-os-version,5,--minor-os-version,1
  -Wl,--major-subsystem-version,5,--minor-subsystem-version,1)
