# The same for 32 bits, the width of a device.
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
