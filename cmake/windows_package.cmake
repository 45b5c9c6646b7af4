# What is installed on Windows, all in one folder: cmake --install, then tools/pack-windows makes installer and zip of it.
# The guide and the sample project are those of a build for this system: the same bytes.
set(TERRAVANE_LINUX_BUILD ${CMAKE_SOURCE_DIR}/build CACHE PATH "The build for this system that guide and sample are of")

set_target_properties(terravane PROPERTIES WIN32_EXECUTABLE ON)
install(TARGETS terravane terravane-script terravane-report RUNTIME DESTINATION .)

# Shared libraries: ours beside the programs, the compiler's too, Qt's plugins in the folders where Qt looks for them.
function(install_compiler_library name)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name} OUTPUT_VARIABLE file
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  install(FILES ${file} DESTINATION .)
endfunction()
foreach(library libgcc_s_seh-1.dll libssp-0.dll libstdc++-6.dll libwinpthread-1.dll)
  install_compiler_library(${library})
endforeach()
foreach(library Qt6Core Qt6Gui Qt6PrintSupport Qt6Widgets libnettle-8)
  install(FILES ${TERRAVANE_WINDOWS_PREFIX}/bin/${library}.dll DESTINATION .)
endforeach()
foreach(plugin platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle imageformats/qjpeg imageformats/qico)
  cmake_path(GET plugin PARENT_PATH folder)
  install(FILES ${TERRAVANE_WINDOWS_PREFIX}/plugins/${plugin}.dll DESTINATION ${folder})
endforeach()

set(share share/terravane)
file(GLOB fonts /usr/share/fonts/truetype/tlwg/Loma*.ttf /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf
     /usr/share/fonts/truetype/liberation/LiberationSerif-*.ttf)
install(FILES ${fonts} DESTINATION ${share}/fonts)
install(FILES ${TERRAVANE_LINUX_BUILD}/share/terravane/UserGuide.pdf DESTINATION ${share} OPTIONAL)
install(FILES ${TERRAVANE_LINUX_BUILD}/samples/TRVN_road.mdb DESTINATION ${share}/samples OPTIONAL)
install(DIRECTORY samples/road DESTINATION ${share}/samples)

# The terms of all that is shipped, as Debian keeps them with the packages that it was made from.
install(FILES packaging/copyright DESTINATION licences RENAME terravane.txt)
install(FILES packaging/windows/shipped.txt DESTINATION licences)
foreach(package libqt6core6 libharfbuzz0b libnettle8 nlohmann-json3-dev libcli11-dev fonts-tlwg-loma-ttf fonts-liberation
                gcc-mingw-w64-base mingw-w64-common)
  install(FILES /usr/share/doc/${package}/copyright DESTINATION licences RENAME ${package}.txt)
endforeach()
foreach(licence LGPL-3 LGPL-2.1 GPL-3 GPL-2 GPL-1 Apache-2.0)
  install(FILES /usr/share/common-licenses/${licence} DESTINATION licences RENAME ${licence}.txt)
endforeach()
