# The pure parts: no <windows.h>, so that they are also compiled natively, with sanitizers, and fuzzed.
add_library(diary_pure STATIC
  app/command_line.cpp
  app/language/dialog_init.cpp
  app/language/language_file.cpp
  app/language/language_index.cpp
  app/sheets/page_rows.cpp
  settings/contact_name.cpp
  settings/date_picture.cpp
  appearance/skins/bitmap_file.cpp
  appearance/categories/bitmap_header.cpp
  appearance/drawing/category_color.cpp
  appearance/categories/color_grid.cpp
  appearance/categories/file_name_escape.cpp
  appearance/categories/icon_catalogue.cpp
  appearance/categories/icon_grid.cpp
  appearance/categories/icon_sources.cpp
  appearance/drawing/note_label.cpp
  appearance/categories/short_path.cpp
  appearance/skins/skin_list.cpp
  appearance/skins/strip.cpp
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
