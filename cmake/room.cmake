# The compiler settings every room shares.
add_library(vorbilax_settings INTERFACE)
target_include_directories(vorbilax_settings INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(vorbilax_settings INTERFACE -Wall -Wextra -Wconversion -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(vorbilax_settings INTERFACE -fpch-preprocess)  # for the compiler cache
endif()
option(VORBILAX_SANITIZE "address and undefined-behaviour sanitizers" OFF)
if(VORBILAX_SANITIZE)
  target_compile_options(vorbilax_settings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    -Wno-maybe-uninitialized)  # g++ 12 sees ghosts in instrumented library code
  target_link_options(vorbilax_settings INTERFACE -fsanitize=address,undefined)
endif()
option(VORBILAX_WERROR "warnings are errors" ON)
if(VORBILAX_WERROR)
  target_compile_options(vorbilax_settings INTERFACE -Werror)
endif()

# add_room(NAME SOURCES... LINKS libraries...): one static library.
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name} PUBLIC vorbilax_settings ${ROOM_LINKS})
  target_precompile_headers(${name} PRIVATE
    <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <string> <vector>)
endfunction()
