# A build from nothing spends most of its time on reading the same headers and compiling the same templates for file
# after file, so that the release build takes the files of a folder as one unit. What files keep to themselves (in an
# unnamed namespace) has names of its own in a folder, therefore; APART are files of which that would be asked in vain,
# as regular expressions of their names. The other builds compile file by file, and so find an include that is missing.
function(terravane_compile_together target)
  cmake_parse_arguments(together "" "" "FILES;APART" ${ARGN})
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  foreach(pattern IN LISTS together_APART)
    list(FILTER together_FILES EXCLUDE REGEX ${pattern})
  endforeach()
  foreach(file IN LISTS together_FILES)
    cmake_path(GET file PARENT_PATH folder)
    cmake_path(GET folder FILENAME folder)
    set_source_files_properties(${file} PROPERTIES UNITY_GROUP ${folder})
  endforeach()
endfunction()

# What differs from system to system stands in pairs of sources, NAME_posix.cpp and NAME_windows.cpp, of which a build
# takes one; no other source asks which system it is for. A system's own headers have names for everything, so that these
# are no part of a folder's unit.
set(TERRAVANE_OTHER_SYSTEM windows)
if(WIN32)
  set(TERRAVANE_OTHER_SYSTEM posix)
endif()

# They ask the layers below, where the time goes: the last of optimising would lengthen a build from nothing and shorten
# no run.
set(TERRAVANE_OUTER_LAYERS app script batch desktop)

# A layer is a folder of src/ and a library of the same name; every .cpp below the folder belongs to it, but main.cpp.
# APART: files that the release build compiles by themselves.
function(terravane_layer name)
  cmake_parse_arguments(layer "" "" "USES;LINKS;APART" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$|_${TERRAVANE_OTHER_SYSTEM}\\.cpp$")
  list(TRANSFORM layer_USES PREPEND terravane_)
  add_library(terravane_${name} STATIC ${sources})
  target_include_directories(terravane_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(terravane_${name} PUBLIC ${layer_USES} ${layer_LINKS})
  if(name IN_LIST TERRAVANE_CHECKED_LAYERS)
    target_compile_definitions(terravane_${name} PRIVATE $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>)
  endif()
  if(name IN_LIST TERRAVANE_OUTER_LAYERS AND CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(terravane_${name} PRIVATE -O2)
  endif()
  terravane_compile_together(terravane_${name} FILES ${sources} APART _posix\\.cpp$ _windows\\.cpp$ ${layer_APART})
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
  if(WIN32)
    terravane_resources(${name})
  endif()
  add_dependencies(programs ${name})
  set_property(GLOBAL APPEND PROPERTY terravane_programs $<TARGET_FILE:${name}>)
endfunction()
