# korvane_discover_suites(<target> PROPERTIES <name> <value>...)
# Adds a test for each suite of a GoogleTest program, named as the suite. Starting a Windows process takes longer than
# most tests do, so that a process for each single test would be most of the time. The suites are asked for when the
# tests are run, and again when the program has changed.
function(korvane_discover_suites target)
    cmake_parse_arguments(arg "" "" "PROPERTIES" ${ARGN})
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake)
    file(GENERATE OUTPUT ${script} CONTENT "
set(program \"$<TARGET_FILE:${target}>\")
set(launcher \"${CMAKE_CROSSCOMPILING_EMULATOR}\")
set(list \"${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.txt\")
if(EXISTS \"\${program}\")
    if(NOT EXISTS \"\${list}\" OR \"\${program}\" IS_NEWER_THAN \"\${list}\")
        execute_process(COMMAND \${launcher} \"\${program}\" --gtest_list_tests
            OUTPUT_VARIABLE output ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
        file(WRITE \"\${list}\" \"\${output}\")
    endif()
    # A suite stands on a line of its own and ends in a dot; its tests are indented.
    file(STRINGS \"\${list}\" suites REGEX \"^[^ ].*[.]\")
    foreach(suite IN LISTS suites)
        string(REGEX REPLACE \"[.].*\" \"\" suite \"\${suite}\")
        add_test(\"\${suite}\" \${launcher} \"\${program}\" \"--gtest_filter=\${suite}.*\" --gtest_brief=1)
        set_tests_properties(\"\${suite}\" PROPERTIES ${arg_PROPERTIES}
            FAIL_REGULAR_EXPRESSION \"0 tests from 0\")
    endforeach()
else()
    add_test(${target}_NOT_BUILT ${target}_NOT_BUILT)
endif()
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${script})
endfunction()
