# Rules of the tree that a machine can see, each a test of its own. Those that compile something are targets outside
# "all", built by their test, so that an unchanged file costs nothing.

find_program(KORVANE_PYTHON python3 REQUIRED)
find_program(KORVANE_HOST_CXX g++ REQUIRED)
find_program(KORVANE_OBJDUMP ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-objdump REQUIRED)
set(KORVANE_CHECKS ${PROJECT_SOURCE_DIR}/scripts/checks)

function(korvane_check name)
    add_test(NAME check.${name} COMMAND ${ARGN})
    set_tests_properties(check.${name} PROPERTIES LABELS check ENVIRONMENT PYTHONDONTWRITEBYTECODE=1)
endfunction()

# A check that builds a target; two builds of one folder must not meet.
function(korvane_build_check name)
    korvane_check(${name} ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target ${name})
    set_property(TEST check.${name} PROPERTY RESOURCE_LOCK build_folder)
endfunction()

korvane_check(formatting ${KORVANE_CHECKS}/formatting.sh ${PROJECT_SOURCE_DIR})
korvane_check(include_rules ${KORVANE_PYTHON} ${KORVANE_CHECKS}/include_rules.py ${PROJECT_SOURCE_DIR})
korvane_check(callbacks ${KORVANE_PYTHON} ${KORVANE_CHECKS}/callbacks.py ${PROJECT_SOURCE_DIR})
korvane_check(control_ids ${KORVANE_PYTHON} ${KORVANE_CHECKS}/control_ids.py ${PROJECT_SOURCE_DIR})
korvane_check(no_machine_paths ${KORVANE_PYTHON} ${KORVANE_CHECKS}/no_machine_paths.py ${PROJECT_SOURCE_DIR})
korvane_check(system_imports
    ${KORVANE_PYTHON} ${KORVANE_CHECKS}/system_imports.py ${KORVANE_OBJDUMP} $<TARGET_FILE:korvane>)
find_program(KORVANE_CHMLS chmls REQUIRED)
korvane_check(help_topics
    ${KORVANE_PYTHON} ${KORVANE_CHECKS}/help_topics.py ${PROJECT_SOURCE_DIR} ${KORVANE_CHMLS} ${KORVANE_HELP_FILE})
korvane_check(help_links ${KORVANE_PYTHON} ${KORVANE_CHECKS}/help_links.py ${KORVANE_CHMLS} ${KORVANE_HELP_FILE})
korvane_check(help_texts
    ${KORVANE_PYTHON} ${KORVANE_CHECKS}/help_texts.py ${PROJECT_SOURCE_DIR} ${KORVANE_CHMLS} ${KORVANE_HELP_FILE})
korvane_check(the_checks_themselves ${KORVANE_PYTHON} ${PROJECT_SOURCE_DIR}/tests/checks/checks_test.py)

# logic_is_portable: the host has no windows.h, so what parses here cannot have seen Windows.
file(GLOB logic_files RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/base/*.h ${PROJECT_SOURCE_DIR}/base/*.cpp
    ${PROJECT_SOURCE_DIR}/*/logic/*.h ${PROJECT_SOURCE_DIR}/*/logic/*.cpp)
foreach(file IN LISTS logic_files)
    set(stamp ${CMAKE_BINARY_DIR}/logic_is_portable/${file}.parsed)
    get_filename_component(folder ${stamp} DIRECTORY)
    set(source ${PROJECT_SOURCE_DIR}/${file})
    if(file MATCHES "[.]h$") # as an included file, because a header by itself may not say "#pragma once"
        set(source -include ${source} /dev/null)
    endif()
    add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${KORVANE_HOST_CXX} -x c++ -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion
            -Werror -I${PROJECT_SOURCE_DIR} -MD -MT ${stamp} -MF ${stamp}.d ${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${PROJECT_SOURCE_DIR}/${file}
        DEPFILE ${stamp}.d
        COMMENT "Parsing ${file} without Windows"
        VERBATIM)
    list(APPEND portable_stamps ${stamp})
endforeach()
add_custom_target(logic_is_portable DEPENDS ${portable_stamps})
korvane_build_check(logic_is_portable)

# headers_compile_alone: one source per header that holds nothing but its include.
file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/base/*.h ${PROJECT_SOURCE_DIR}/framework/*.h ${PROJECT_SOURCE_DIR}/settings/*.h
    ${PROJECT_SOURCE_DIR}/about/*.h ${PROJECT_SOURCE_DIR}/controls/*.h ${PROJECT_SOURCE_DIR}/search/*.h
    ${PROJECT_SOURCE_DIR}/launch/*.h ${PROJECT_SOURCE_DIR}/app/*.h ${PROJECT_SOURCE_DIR}/res/*.h)
foreach(header IN LISTS headers)
    set(source ${CMAKE_BINARY_DIR}/headers_compile_alone/${header}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
    list(APPEND header_sources ${source})
endforeach()
add_library(headers_compile_alone OBJECT EXCLUDE_FROM_ALL ${header_sources})
target_link_libraries(headers_compile_alone PRIVATE korvane_options)
target_compile_options(headers_compile_alone PRIVATE -g0 -O0)
korvane_build_check(headers_compile_alone)

# clang_tidy: the profile in .clang-tidy over every source of the program. Clang takes the cross compiler's headers.
find_program(KORVANE_CLANG_TIDY clang-tidy REQUIRED)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=include OUTPUT_VARIABLE gcc_include
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(gcc_folder ${gcc_include} DIRECTORY)
set(cross ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(tidy_flags --target=${CMAKE_SYSTEM_PROCESSOR}-w64-windows-gnu -std=c++20 -I${PROJECT_SOURCE_DIR}
    -isystem ${gcc_folder}/include/c++ -isystem ${gcc_folder}/include/c++/${cross}
    -isystem ${gcc_folder}/include/c++/backward -isystem /usr/share/mingw-w64/include)
foreach(definition IN LISTS KORVANE_DEFINITIONS)
    list(APPEND tidy_flags -D${definition})
endforeach()
file(GLOB_RECURSE tidy_sources RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/base/*.cpp ${PROJECT_SOURCE_DIR}/framework/*.cpp ${PROJECT_SOURCE_DIR}/settings/*.cpp
    ${PROJECT_SOURCE_DIR}/about/*.cpp ${PROJECT_SOURCE_DIR}/controls/*.cpp ${PROJECT_SOURCE_DIR}/search/*.cpp
    ${PROJECT_SOURCE_DIR}/launch/*.cpp ${PROJECT_SOURCE_DIR}/app/*.cpp)
foreach(file IN LISTS tidy_sources)
    set(source ${PROJECT_SOURCE_DIR}/${file})
    set(stamp ${CMAKE_BINARY_DIR}/clang_tidy/${file}.clean)
    get_filename_component(folder ${stamp} DIRECTORY)
    add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        # The compiler tells which headers the source hangs on.
        COMMAND ${CMAKE_CXX_COMPILER} -std=c++20 -I${PROJECT_SOURCE_DIR} -MM -MT ${stamp} -MF ${stamp}.d ${source}
        COMMAND ${KORVANE_CLANG_TIDY} --quiet ${source} -- ${tidy_flags}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${source} ${PROJECT_SOURCE_DIR}/.clang-tidy
        DEPFILE ${stamp}.d
        COMMENT "Reading ${file} with clang-tidy"
        VERBATIM)
    list(APPEND tidy_stamps ${stamp})
endforeach()
add_custom_target(clang_tidy DEPENDS ${tidy_stamps})
korvane_build_check(clang_tidy)
