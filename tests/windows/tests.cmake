# The tests that ./test-windows runs: all of each layer, pages and properties, and the windows. What needs programs or
# calls of the other system stays there.
foreach(layer runtime laboratory numeric drawing controls jet program store sheets reports results app script batch render)
  terravane_tests(${layer}_tests unit/${layer} LINKS terravane_${layer})
endforeach()
terravane_tests(journal_tests unit/journal LINKS terravane_app terravane_journal)
terravane_tests(notes_tests unit/notes LINKS terravane_notes terravane_script)
terravane_tests(page_tests pages LINKS terravane_script)
terravane_tests(property_tests properties LINKS terravane_app terravane_journal)

find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
file(GLOB desktop_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/desktop/*_test.cpp)
list(FILTER desktop_sources EXCLUDE REGEX ${TERRAVANE_READ_BY_OTHERS})
list(APPEND desktop_sources ${CMAKE_CURRENT_SOURCE_DIR}/desktop/main.cpp
     ${CMAKE_CURRENT_SOURCE_DIR}/desktop/desktop_fixture.cpp)
add_executable(desktop_tests ${desktop_sources})
target_include_directories(desktop_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${test_headers})
target_link_libraries(desktop_tests PRIVATE terravane_desktop terravane_script Qt6::Test GTest::gtest)
terravane_compile_quickly(desktop_tests ${desktop_sources})
