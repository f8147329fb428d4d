# One test program a room: add_suite(registry SOURCES a.cpp b.cpp USES registry simulated). Cases
# that take long can be a test of their own: LONG "their names*".
function(add_suite name)
  cmake_parse_arguments(SUITE "" "" "SOURCES;USES;LONG" ${ARGN})
  add_executable(test_${name} ${SUITE_SOURCES})
  target_link_libraries(test_${name} PRIVATE test_support ${SUITE_USES})
  set_target_properties(test_${name} PROPERTIES UNITY_BUILD ${QUILLMORE_UNITY})
  # doctest's macros shadow and convert in ways that the program's own code may not.
  target_compile_options(test_${name} PRIVATE -Wno-shadow -Wno-conversion)
  if(QUILLMORE_SANITIZE)
    # What is watched for undefined behaviour is the program; watching the framework's macros too
    # would double the time that a suite takes to compile.
    target_compile_options(test_${name} PRIVATE -fno-sanitize=undefined -g1)
  endif()
  if(SUITE_LONG)
    add_test(NAME ${name} COMMAND test_${name} --test-case-exclude=${SUITE_LONG})
    add_test(NAME ${name}_long COMMAND test_${name} --test-case=${SUITE_LONG})
  else()
    add_test(NAME ${name} COMMAND test_${name})
  endif()
  if(WIN32)
    # One prefix and one display: the mouse and the focus are there once.
    get_property(tests DIRECTORY PROPERTY TESTS)
    set_tests_properties(${tests} PROPERTIES RESOURCE_LOCK wine)
  endif()
endfunction()
