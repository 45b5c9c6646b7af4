# What a program for Windows has beside its code: icon, version and manifest; a desktop program starts without a console.
enable_language(RC)
set(TERRAVANE_DESCRIPTIONS
    "terravane=Terravane, the road-materials laboratory"
    "terravane-script=Terravane's forms driven by a script"
    "terravane-report=Terravane's reports of many projects")

function(terravane_resources name)
  set(resource_description "")
  foreach(line IN LISTS TERRAVANE_DESCRIPTIONS)
    if(line MATCHES "^${name}=(.*)")
      set(resource_description ${CMAKE_MATCH_1})
    endif()
  endforeach()
  string(REPLACE "." "," version_numbers "${PROJECT_VERSION}.0.0.0")
  string(REGEX MATCH "^[0-9]+,[0-9]+,[0-9]+,[0-9]+" version_numbers "${version_numbers}")
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${CMAKE_BINARY_DIR}/${name}.rc @ONLY)
  target_sources(${name} PRIVATE ${CMAKE_BINARY_DIR}/${name}.rc)
endfunction()
