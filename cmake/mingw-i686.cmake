set(KORVANE_CPU i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
