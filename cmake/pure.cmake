# The pure parts: no <windows.h>, so that they are also compiled natively, with sanitizers, and fuzzed.
add_library(diary_pure STATIC
  app/command_line.cpp
  app/dialog_init.cpp
  app/language_file.cpp
  app/language_index.cpp
  app/page_rows.cpp
  settings/contact_name.cpp
  settings/date_picture.cpp
  appearance/bitmap_file.cpp
  appearance/bitmap_header.cpp
  appearance/category_color.cpp
  appearance/color_grid.cpp
  appearance/file_name_escape.cpp
  appearance/icon_catalogue.cpp
  appearance/icon_grid.cpp
  appearance/icon_sources.cpp
  appearance/note_label.cpp
  appearance/short_path.cpp
  appearance/skin_list.cpp
  appearance/strip.cpp
  pages/stores/mail_filter.cpp
  pages/stores/mail_filter_names.cpp
  pages/stores/settings_ini.cpp
  settings/date_picture.cpp
  settings/display_pattern.cpp
  settings/hidden_names.cpp
  settings/keyboard_layout.cpp
  settings/settings_file.cpp
  settings/tab_layout.cpp
  settings/title_fields.cpp
)
target_include_directories(diary_pure PUBLIC ${CMAKE_SOURCE_DIR})
target_link_libraries(diary_pure PRIVATE diary_warnings)
