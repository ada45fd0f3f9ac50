# What uses the platform but no windows; the program and its tests link the same.
add_library(diary_models STATIC
  app/language/language_table.cpp
  app/language/language_template.cpp
  app/language/module.cpp
  app/registry_exporter.cpp
  appearance/skins/archive.cpp
  appearance/categories/category_color_store.cpp
  appearance/categories/category_icon_files.cpp
  appearance/categories/category_icons.cpp
  appearance/drawing/date_formats.cpp
  appearance/drawing/fonts.cpp
  appearance/categories/icon_digest.cpp
  appearance/categories/icon_files.cpp
  appearance/categories/icon_library.cpp
  base/mapped_file.cpp
  base/scale.cpp
  appearance/drawing/shell_colors.cpp
  appearance/skins/skin_art.cpp
  appearance/skins/skin_source.cpp
  appearance/skins/skin_strip.cpp
  appearance/drawing/theme_colors.cpp
  pages/stores/database_layer.cpp
  pages/stores/database_record.cpp
  pages/stores/handwriting.cpp
  pages/stores/mail2.cpp
  pages/stores/mail2_storage.cpp
  pages/stores/mail_folder_tree.cpp
  pages/stores/mail_folders_filters.cpp
  pages/stores/mapi_session.cpp
  pages/stores/note_folders.cpp
  pages/stores/read_settings_ini.cpp
  settings/device.cpp
  settings/diary_settings.cpp
  settings/install_path.cpp
  settings/keyboard_layouts.cpp
  settings/registration.cpp
  settings/settings_key.cpp
)
target_link_libraries(diary_models PUBLIC diary_pure pocketpc_headers PRIVATE diary_warnings minizip)

# Controls that need no dialog of the program's, which tests open in dialogs of their own, and what has a
# window to hear of changes.
add_library(diary_controls STATIC
  appearance/categories/category_list.cpp
  appearance/categories/color_button.cpp
  appearance/categories/colors_list_window.cpp
  appearance/categories/icons_list_control.cpp
  controls/dialog.cpp
  controls/window.cpp
)
target_link_libraries(diary_controls PUBLIC diary_models PRIVATE diary_warnings)

# DiarySettings.exe. Our stand-ins come first on the link line, so that the functions they export bind to
# them, as on the device everything binds to the system's own libraries.
file(GLOB pages CONFIGURE_DEPENDS pages/*.cpp)
add_executable(DiarySettings WIN32
  app/about_dialog.cpp
  app/diary_settings.rc
  app/export_import.cpp
  controls/launch_help.cpp
  app/main.cpp
  app/main_frame.cpp
  app/notify_plugin.cpp
  app/open_entry.cpp
  app/sheets/options_page.cpp
  app/sheets/options_sheet.cpp
  app/single_instance.cpp
  appearance/drawing/folding_stripe.cpp
  appearance/drawing/sample_list.cpp
  appearance/drawing/today_background.cpp
  controls/check_list.cpp
  controls/full_screen_dialog.cpp
  controls/preview_window.cpp
  controls/title_band.cpp
  ${pages}
)
target_link_options(DiarySettings PRIVATE -municode $<$<CONFIG:MinSizeRel,Release>:-s>)
target_link_libraries(DiarySettings PRIVATE
  diary_art diary_controls diary_models diary_warnings pocketpc_headers coredll aygshell cemapi commctrl
  richink inkx)
add_dependencies(DiarySettings DiaryRes note_prj)
