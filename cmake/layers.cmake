# A build from nothing spends most of its time on reading headers, so that the release build reads the common ones once:
# the standard library's for every layer, Qt's and JSON's for the layers that name them. The other builds go without and
# so find an include that is missing.
set(TERRAVANE_COMMON_HEADERS <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <optional> <span> <string>
    <string_view> <utility> <variant> <vector>)

function(terravane_precompile name)
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    return()
  endif()
  if(layer_PRECOMPILED_AS)
    target_precompile_headers(terravane_${name} REUSE_FROM terravane_${layer_PRECOMPILED_AS})
  elseif(ARGN OR name IN_LIST TERRAVANE_CHECKED_LAYERS OR name STREQUAL "runtime")
    target_precompile_headers(terravane_${name} PRIVATE ${TERRAVANE_COMMON_HEADERS} ${ARGN})
  else()
    target_precompile_headers(terravane_${name} REUSE_FROM terravane_runtime)
  endif()
endfunction()

# A layer is a folder of src/ and a library of the same name; every .cpp below the folder belongs to it, but main.cpp.
# PRECOMPILES: headers to read once beside the common ones; PRECOMPILED_AS: the layer that has read the same.
function(terravane_layer name)
  cmake_parse_arguments(layer "" "PRECOMPILED_AS" "USES;LINKS;PRECOMPILES" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(TRANSFORM layer_USES PREPEND terravane_)
  add_library(terravane_${name} STATIC ${sources})
  target_include_directories(terravane_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(terravane_${name} PUBLIC ${layer_USES} ${layer_LINKS})
  if(name IN_LIST TERRAVANE_CHECKED_LAYERS)
    target_compile_definitions(terravane_${name} PRIVATE $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>)
  endif()
  terravane_precompile(${name} ${layer_PRECOMPILES})
endfunction()

# A program: one main.cpp over layers. The target `programs` builds them all, without the tests.
add_custom_target(programs)
function(terravane_program name)
  cmake_parse_arguments(program "" "MAIN" "USES;LINKS" ${ARGN})
  list(TRANSFORM program_USES PREPEND terravane_)
  add_executable(${name} ${program_MAIN})
  # A main reads arguments: not worth the time that optimising the library for them takes.
  set_source_files_properties(${program_MAIN} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O1>)
  target_link_libraries(${name} PRIVATE ${program_USES} ${program_LINKS})
  add_dependencies(programs ${name})
  set_property(GLOBAL APPEND PROPERTY terravane_programs $<TARGET_FILE:${name}>)
endfunction()
