# Pictures compiled into a layer: those of a folder that a header of the layer names, returned by a function that it
# declares.
function(terravane_pictures layer)
  cmake_parse_arguments(pictures "" "HEADER;FOLDER;FUNCTION" "" ${ARGN})
  set(folder ${CMAKE_SOURCE_DIR}/${pictures_FOLDER})
  cmake_path(GET pictures_HEADER STEM name)
  set(source ${CMAKE_BINARY_DIR}/${name}.cpp)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.jpg)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -D HEADER=${pictures_HEADER} -D SOURCES=${CMAKE_SOURCE_DIR}/src -D FOLDER=${folder}
            -D FUNCTION=${pictures_FUNCTION} -D OUTPUT=${source} -P ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    DEPENDS ${CMAKE_SOURCE_DIR}/src/${pictures_HEADER} ${files} ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    COMMENT "Compiling in the pictures of ${pictures_FOLDER}"
    VERBATIM)
  target_sources(terravane_${layer} PRIVATE ${source})
endfunction()
