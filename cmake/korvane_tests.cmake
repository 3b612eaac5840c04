# GoogleTest is built from Debian's sources with the cross compiler.
set(GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH "GoogleTest's source folder")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
add_subdirectory(${GOOGLETEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
