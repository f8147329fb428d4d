# read_limit(NAME VARIABLE): the number of that name in bench/limits.txt.
function(read_limit name variable)
  file(STRINGS ${PROJECT_SOURCE_DIR}/bench/limits.txt line REGEX "^${name}=")
  if(NOT line MATCHES "^${name}=([0-9.]+)$")
    message(FATAL_ERROR "bench/limits.txt has no ${name}")
  endif()
  set(${variable} ${CMAKE_MATCH_1} PARENT_SCOPE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/bench/limits.txt)
endfunction()
