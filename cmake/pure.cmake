# The pure parts: no <windows.h>, so that they are also compiled natively, with sanitizers, and fuzzed.
add_library(diary_pure STATIC
  app/command_line.cpp
  app/dialog_init.cpp
  app/language_file.cpp
  app/language_index.cpp
  app/page_rows.cpp
  pages/stores/settings_ini.cpp
  settings/display_pattern.cpp
)
target_include_directories(diary_pure PUBLIC ${CMAKE_SOURCE_DIR})
target_link_libraries(diary_pure PRIVATE diary_warnings)
