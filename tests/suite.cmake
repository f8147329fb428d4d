# One test program a room: add_suite(registry SOURCES a.cpp b.cpp USES registry simulated). Cases
# that take long can be a test of their own: LONG "their names*". A suite that takes long is several
# tests, which run side by side: PARTS "a.cpp b.cpp" "c.cpp" makes the first one of the cases of a.cpp
# and b.cpp, the second one of those of c.cpp and the last one of all others.
function(add_suite name)
  cmake_parse_arguments(SUITE "" "" "SOURCES;USES;LONG;PARTS" ${ARGN})
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
  set(filter "")
  if(SUITE_LONG)
    add_test(NAME ${name}_long COMMAND test_${name} --test-case=${SUITE_LONG})
    set(filter --test-case-exclude=${SUITE_LONG})
  endif()
  # The last part is everything that the others leave out, so that each case is in one and only one.
  set(number 0)
  set(taken "")
  foreach(part IN LISTS SUITE_PARTS)
    math(EXPR number "${number} + 1")
    set(files "")
    separate_arguments(part)
    foreach(source IN LISTS part)
      if(NOT source IN_LIST SUITE_SOURCES OR "*/${source}" IN_LIST taken)
        message(FATAL_ERROR "test_${name}: ${source} is no source, or in two parts")
      endif()
      list(APPEND files */${source})
      list(APPEND taken */${source})
    endforeach()
    list(JOIN files , files)
    add_test(NAME ${name}_${number} COMMAND test_${name} ${filter} --source-file=${files})
  endforeach()
  if(taken)
    list(JOIN taken , taken)
    list(APPEND filter --source-file-exclude=${taken})
  endif()
  add_test(NAME ${name} COMMAND test_${name} ${filter})
  if(WIN32)
    # They wait more than they compute: the sooner they begin the better.
    get_property(tests DIRECTORY PROPERTY TESTS)
    set_tests_properties(${tests} PROPERTIES COST 100)
  endif()
endfunction()
