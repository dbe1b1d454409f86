# Cross-compiles for 64-bit Windows with MinGW-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(ORVE_MINGW x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/OrveMinGW.cmake)
