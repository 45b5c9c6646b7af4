# The first content of the brand folder, compiled into the store layer.
set(brandHeader ${CMAKE_SOURCE_DIR}/src/store/brand_pictures.h)
set(brandFolder ${CMAKE_SOURCE_DIR}/assets/BrandList)
set(brandSource ${CMAKE_BINARY_DIR}/brand_pictures.cpp)
file(GLOB brandFiles CONFIGURE_DEPENDS ${brandFolder}/*.jpg)
add_custom_command(
  OUTPUT ${brandSource}
  COMMAND ${CMAKE_COMMAND} -D HEADER=${brandHeader} -D FOLDER=${brandFolder} -D OUTPUT=${brandSource}
          -P ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
  DEPENDS ${brandHeader} ${brandFiles} ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
  COMMENT "Compiling in the first pictures of the brand folder"
  VERBATIM)
target_sources(terravane_store PRIVATE ${brandSource})
