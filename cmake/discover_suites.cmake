# Tells ctest the suites of a test program, a test each: a process a suite, not one for every test, for hundreds of programs
# that start cost more than what most tests do. A suite of parameters is named with its instance. Which test of a suite
# failed stands in what the program prints.
#
#   cmake -D PROGRAM=… -D LIST=… -D FOLDER=… -D SECONDS=… -P discover_suites.cmake

execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[A-Za-z][A-Za-z0-9_/]*\\." suites "${listed}")
set(lines "")
foreach(suite IN LISTS suites)
  string(REGEX MATCH "[A-Za-z][A-Za-z0-9_/]*" suite "${suite}")
  string(APPEND lines "add_test(${suite} \"${PROGRAM}\" \"--gtest_filter=${suite}.*\")\n"
                      "set_tests_properties(${suite} PROPERTIES TIMEOUT ${SECONDS} WORKING_DIRECTORY \"${FOLDER}\""
                      " FAIL_REGULAR_EXPRESSION \"Running 0 tests\")\n")
endforeach()
file(WRITE ${LIST} "${lines}")
