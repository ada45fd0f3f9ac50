# minizip's unzip layer over zlib, from the sources that fetch_source of tools/common.sh unpacks. Files are
# opened by functions of our own; with USE_FILE32API its own, unused, need nothing that a device lacks.
set(minizip ${CMAKE_SOURCE_DIR}/third_party/minizip)
if(NOT EXISTS ${minizip}/unzip.c)
  message(FATAL_ERROR "third_party/minizip is missing; ./run --build fetches it (Debian's source package minizip)")
endif()
set(ZLIB_USE_STATIC_LIBS ON)
find_package(ZLIB REQUIRED)
add_library(minizip STATIC ${minizip}/unzip.c ${minizip}/ioapi.c)
target_compile_options(minizip PRIVATE -w)
target_compile_definitions(minizip PUBLIC USE_FILE32API)
target_include_directories(minizip SYSTEM PUBLIC ${minizip})
target_link_libraries(minizip PUBLIC ZLIB::ZLIB)
