# A room is one static library for one folder of src/. Its sources are listed by hand, and it links
# only rooms of the floors below it, so the link order is the architecture. Files that a program of
# the tests replaces by one of its own are ALONE: each stays an object of its own. A BUSY room is one
# in which the suites spend their time: optimised, it takes longer to compile and less than half to run.
function(add_room name)
  cmake_parse_arguments(ROOM "BUSY" "" "SOURCES;ALONE;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES} ${ROOM_ALONE})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  set_target_properties(${name} PROPERTIES UNITY_BUILD ${QUILLMORE_UNITY})
  set_source_files_properties(${ROOM_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  if(ROOM_BUSY)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O1>)
  endif()
  if(WIN32)
    # Both the code and what optimising the whole program needs; see src/CMakeLists.txt.
    target_compile_options(${name} PRIVATE $<$<CONFIG:MinSizeRel>:-flto;-ffat-lto-objects>)
  endif()
  target_link_libraries(${name} PUBLIC ${ROOM_USES})
endfunction()
