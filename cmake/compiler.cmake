# Every machine prints the same digits: no contraction of a*b+c into one rounding, no fast-math.
add_compile_options(-ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast
                    -Woverloaded-virtual -Wconversion -Wsign-conversion -Werror)

# What a designated or short initializer leaves out has its default: that is what it is for.
add_compile_options(-Wno-missing-field-initializers)

# GCC 12 sees overlapping copies in std::string's own operator+ where there are none; the compiler's maintainers
# mended it in 12.3 and later.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()

# What is installed opens files that others made. Should one of them find a fault, it shall end the program and not
# take it over: checked copies, a guarded stack, addresses that no file can know, no table of functions left writable.
# tools/check-hardening looks at the programs as they were built.
add_compile_options("$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-fstack-protector-strong>")
if(WIN32)
  # The guard of the stack is in a library of its own there; addresses change and data is no code by default.
  add_link_options(-fstack-protector-strong -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
  # The system's header: the functions for texts of all languages, and no macros named min and max.
  add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0A00)
else()
  add_compile_options("$<$<CONFIG:Release>:-fstack-clash-protection;-fPIE>")
  add_link_options("$<$<CONFIG:Release>:-pie;-Wl,-z,relro,-z,now,-z,noexecstack>")
endif()

# The layers that take others' files apart have the standard library's indexes checked as well; in the numerics that
# would cost a sixth of the time.
set(TERRAVANE_CHECKED_LAYERS jet)

if(TERRAVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
                      -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # A precompiled header carries times and macros that ccache would otherwise not let pass.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()
find_program(MOLD mold)
if(MOLD AND NOT WIN32)
  add_link_options(-fuse-ld=mold)
endif()
