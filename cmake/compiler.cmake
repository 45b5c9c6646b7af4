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

if(TERRAVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
find_program(MOLD mold)
if(MOLD)
  add_link_options(-fuse-ld=mold)
endif()
