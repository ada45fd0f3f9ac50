# What uses the platform but no windows; the program and its tests link the same.
add_library(diary_models STATIC
  app/language_table.cpp
  app/language_template.cpp
  app/module.cpp
  app/registry_exporter.cpp
  appearance/archive.cpp
  appearance/category_color_store.cpp
  appearance/category_icon_files.cpp
  appearance/category_icons.cpp
  appearance/date_formats.cpp
  appearance/fonts.cpp
  appearance/icon_digest.cpp
  appearance/icon_files.cpp
  appearance/icon_library.cpp
  appearance/mapped_file.cpp
  appearance/scale.cpp
  appearance/shell_colors.cpp
  appearance/skin_art.cpp
  appearance/skin_source.cpp
  appearance/skin_strip.cpp
  appearance/theme_colors.cpp
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
  appearance/category_list.cpp
  appearance/color_button.cpp
  appearance/colors_list_window.cpp
  appearance/icons_list_control.cpp
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
  app/launch_help.cpp
  app/main.cpp
  app/main_frame.cpp
  app/notify_plugin.cpp
  app/open_entry.cpp
  app/options_page.cpp
  app/options_sheet.cpp
  app/single_instance.cpp
  appearance/folding_stripe.cpp
  appearance/sample_list.cpp
  appearance/today_background.cpp
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
