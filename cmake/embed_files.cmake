# Writes a source file with the pictures that a header names: every constant `k... = "file.jpg"` of the header becomes
# an array of that file's bytes, and FUNCTION, which the header declares, returns them all. Run while building:
#
#   cmake -D HEADER=store/brand_pictures.h -D SOURCES=src -D FOLDER=assets/BrandList -D FUNCTION=FirstBrandPictures
#         -D OUTPUT=brand_pictures.cpp -P embed_files.cmake

file(STRINGS ${SOURCES}/${HEADER} lines REGEX "std::string_view k[A-Za-z]+ = \"[^\"]+\\.jpg\"")
list(LENGTH lines count)
set(arrays "")
set(entries "")
foreach(line IN LISTS lines)
  string(REGEX MATCH "(k[A-Za-z]+) = \"([^\"]+)\"" found "${line}")
  set(constant ${CMAKE_MATCH_1})
  file(READ ${FOLDER}/${CMAKE_MATCH_2} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "constexpr std::uint8_t ${constant}Bytes[] = {${bytes}};\n")
  string(APPEND entries "        BrandPicture{${constant}, ${constant}Bytes},\n")
endforeach()

file(WRITE ${OUTPUT} "// Written by cmake/embed_files.cmake; change the pictures, not this file.
#include \"${HEADER}\"

namespace terravane {

namespace {

${arrays}
}  // namespace

std::array<BrandPicture, ${count}> ${FUNCTION}()
{
    return {
${entries}    };
}

}  // namespace terravane
")
