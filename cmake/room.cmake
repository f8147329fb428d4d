set(ROOM_WARNINGS
  -Wcast-qual
  -Wctor-dtor-privacy
  -Wdeprecated-copy-dtor
  -Wduplicated-branches
  -Wduplicated-cond
  -Wextra-semi
  -Wformat-security
  -Wlogical-op
  -Wmissing-declarations
  -Wnon-virtual-dtor
  -Wold-style-cast
  -Woverloaded-virtual
  -Wredundant-decls
  -Wsuggest-override
  -Wundef
  -Wunused-const-variable
  -Wunused-macros
  -Wzero-as-null-pointer-constant)

# A room is one static library for one folder of src/. Its sources are listed by hand, and it uses
# only rooms of lower floors, so the link order is the architecture; SYSTEM are libraries of Windows.
# Files that a program of the tests replaces by one of its own are ALONE: each stays an object of its
# own. A BUSY room is one in which the suites spend their time: optimised, it takes longer to compile
# and less than half to run. A room of headers alone has no SOURCES.
function(add_room name)
  cmake_parse_arguments(ROOM "BUSY" "FLOOR" "SOURCES;ALONE;USES;SYSTEM" ${ARGN})
  set(scope PUBLIC)
  if(ROOM_SOURCES)
    add_library(${name} STATIC ${ROOM_SOURCES} ${ROOM_ALONE})
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${UNITY_ROOMS})
    set_source_files_properties(${ROOM_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_compile_options(${name} PRIVATE ${ROOM_WARNINGS})
    if(ROOM_BUSY)
      target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O1>)
    endif()
    if(WIN32)
      # Both the code and what optimising the whole program needs; see src/program/CMakeLists.txt.
      target_compile_options(${name} PRIVATE $<$<CONFIG:MinSizeRel>:-flto;-ffat-lto-objects>)
    endif()
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${name} ${scope} ${PROJECT_SOURCE_DIR}/src)
  # For ./test, which compiles each header alone: those that know Windows for Windows, the others not.
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  target_sources(${name} ${scope}
    FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
  if(NOT WIN32 OR name MATCHES "^win32")
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  endif()
  target_link_libraries(${name} ${scope} ${ROOM_USES} ${ROOM_SYSTEM})
endfunction()
