# What uses the platform but no windows; the program and its tests link the same.
add_library(diary_models STATIC
  app/language_table.cpp
  app/language_template.cpp
  app/module.cpp
  pages/stores/database_layer.cpp
  pages/stores/database_record.cpp
  pages/stores/mail2.cpp
  pages/stores/mail2_storage.cpp
  pages/stores/read_settings_ini.cpp
  settings/device.cpp
  settings/diary_settings.cpp
  settings/install_path.cpp
  settings/settings_key.cpp
)
target_link_libraries(diary_models PUBLIC diary_pure pocketpc_headers PRIVATE diary_warnings)

# DiarySettings.exe. Our stand-ins come first on the link line, so that the functions they export bind to
# them, as on the device everything binds to the system's own libraries.
add_executable(DiarySettings WIN32
  app/about_dialog.cpp
  app/diary_settings.rc
  app/launch_help.cpp
  app/main.cpp
  app/main_frame.cpp
  app/notify_plugin.cpp
  app/open_entry.cpp
  app/options_page.cpp
  app/options_sheet.cpp
  app/single_instance.cpp
  appearance/scale.cpp
  controls/dialog.cpp
  controls/full_screen_dialog.cpp
  controls/title_band.cpp
  controls/window.cpp
  pages/calendar_common_page.cpp
  pages/calendar_show_page.cpp
  pages/calendar_tasks_page.cpp
  pages/general_auto_return_page.cpp
  pages/special_events_common_page.cpp
  pages/tasks_common_page.cpp
)
target_link_options(DiarySettings PRIVATE -municode $<$<CONFIG:MinSizeRel,Release>:-s>)
target_link_libraries(DiarySettings PRIVATE
  diary_art diary_models diary_warnings pocketpc_headers coredll aygshell commctrl richink
  inkx)
add_dependencies(DiarySettings DiaryRes)
