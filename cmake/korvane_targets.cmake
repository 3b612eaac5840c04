# The targets of the tree and what each may link. A "logic" library is plain C++: it is also parsed by the host compiler,
# which has no windows.h, so a leak of the Windows headers fails by itself.

add_library(korvane_options INTERFACE)
target_compile_features(korvane_options INTERFACE cxx_std_20)
set(KORVANE_DEFINITIONS
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT _WIN32_WINNT=0x0600 WINVER=0x0600 NTDDI_VERSION=0x06000000)
target_compile_definitions(korvane_options INTERFACE ${KORVANE_DEFINITIONS})
target_compile_options(korvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Werror -fno-strict-aliasing
    $<$<CONFIG:Debug>:-gdwarf-4 -D_GLIBCXX_ASSERTIONS>
    $<$<CONFIG:Release>:-Os -ffunction-sections -fdata-sections>)
target_link_options(korvane_options INTERFACE $<$<CONFIG:Release>:-s -Wl,--gc-sections>)
target_include_directories(korvane_options INTERFACE ${PROJECT_SOURCE_DIR})

# korvane_logic(<name> SOURCES ... [LINK ...])
function(korvane_logic name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    if(NOT arg_SOURCES) # headers only
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE korvane_options ${arg_LINK})
        return()
    endif()
    add_library(${name} STATIC ${arg_SOURCES})
    target_compile_options(${name} PRIVATE -Wconversion)
    target_link_libraries(${name} PUBLIC korvane_options ${arg_LINK})
endfunction()

# korvane_part(<name> SOURCES ... [LINK ...])
function(korvane_part name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC korvane_options ${arg_LINK})
endfunction()
