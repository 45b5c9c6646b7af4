# The user guide: share/terravane/UserGuide.pdf of the build folder, from docs/guide and the sample project. The sample's
# pictures are taken anew when a program has changed, the pages made anew only when a picture, a figure or the text is
# another. Without weasyprint the program has no guide; under the sanitizers it needs none.
find_program(PDFTOPPM pdftoppm)
execute_process(COMMAND /usr/bin/python3 -c "import markdown, weasyprint" RESULT_VARIABLE guide_lacks ERROR_QUIET)
if(guide_lacks OR NOT PDFTOPPM OR TERRAVANE_SANITIZE)
  message(STATUS "The user guide is not built")
  return()
endif()

set(guide_pdf ${CMAKE_BINARY_DIR}/share/terravane/UserGuide.pdf)
set(guide_sample ${CMAKE_BINARY_DIR}/guide)
file(GLOB guide_scripts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/guide/*.trv ${CMAKE_SOURCE_DIR}/samples/laboratory.trv
     ${CMAKE_SOURCE_DIR}/samples/road/*.trv)
file(GLOB guide_texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/guide/*.md ${CMAKE_SOURCE_DIR}/docs/guide/*.html
     ${CMAKE_SOURCE_DIR}/docs/guide/*.css)
add_custom_command(
  OUTPUT ${guide_sample}/sample.json
  COMMAND ${CMAKE_SOURCE_DIR}/tools/build-guide --sample ${guide_sample} --build ${CMAKE_BINARY_DIR}
  DEPENDS ${guide_scripts} ${CMAKE_SOURCE_DIR}/tools/build-guide terravane-script guide_pictures guide_tables
  COMMENT "Taking the pictures of the user guide"
  VERBATIM)
add_custom_command(
  OUTPUT ${guide_pdf}
  COMMAND ${CMAKE_SOURCE_DIR}/tools/build-guide ${guide_pdf} --from ${guide_sample}
  DEPENDS ${guide_texts} ${CMAKE_SOURCE_DIR}/tools/build-guide ${CMAKE_SOURCE_DIR}/assets/src/product_logo.svg
          ${guide_sample}/sample.json
  COMMENT "Making the user guide"
  VERBATIM)
add_custom_target(guide ALL DEPENDS ${guide_pdf})
add_test(NAME guide_pdf COMMAND ${CMAKE_SOURCE_DIR}/tests/guide/check_guide.py pdf ${guide_pdf})
