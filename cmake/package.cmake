# What is installed, and the Debian package of it: cpack -G DEB in the build folder.
include(GNUInstallDirs)

set(share ${CMAKE_INSTALL_DATADIR})
install(TARGETS terravane terravane-script terravane-report)
install(FILES packaging/terravane.desktop DESTINATION ${share}/applications)
install(FILES packaging/terravane.xml DESTINATION ${share}/mime/packages)
install(FILES assets/src/product_logo.svg DESTINATION ${share}/icons/hicolor/scalable/apps RENAME terravane.svg)
install(FILES packaging/copyright DESTINATION ${share}/doc/terravane)
install(FILES $<TARGET_PROPERTY:sample_project,file> DESTINATION ${share}/terravane/samples)
install(DIRECTORY samples/road DESTINATION ${share}/terravane/samples)
if(TARGET guide)
  install(FILES ${guide_pdf} DESTINATION ${share}/terravane)
endif()

# Debian wants manual pages and the package's changelog compressed, without a time in them.
function(install_compressed source name destination)
  set(packed ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(
    OUTPUT ${packed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packaging
    COMMAND gzip -9nc ${source} > ${packed}
    DEPENDS ${source}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY compressed_files ${packed})
  install(FILES ${packed} DESTINATION ${destination})
endfunction()
foreach(program terravane terravane-script terravane-report)
  install_compressed(${CMAKE_SOURCE_DIR}/packaging/man/${program}.1 ${program}.1 ${share}/man/man1)
endforeach()
install_compressed(${CMAKE_SOURCE_DIR}/packaging/changelog changelog ${share}/doc/terravane)
get_property(compressed GLOBAL PROPERTY compressed_files)
add_custom_target(packaging_texts ALL DEPENDS ${compressed})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME terravane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Terravane developers <developers@terravane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "road-materials laboratory: test sheets, project files, reports")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Terravane reduces the readings of laboratory tests of soil and
crushed rock, draws their curves, classifies the soil, keeps one project
file a job and prints reports ready for signature, in Thai and English.
.
The package has the desktop program, a script runner, a tool that prints
the reports of many projects at once, the user's guide and a sample
project.")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-tlwg-loma-ttf, fonts-liberation")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
