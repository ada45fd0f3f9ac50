# What uses the platform but no windows; the program and its tests link the same.
add_library(diary_models STATIC
  app/language_table.cpp
  app/language_template.cpp
  app/module.cpp
  app/registry_exporter.cpp
  appearance/archive.cpp
  appearance/date_formats.cpp
  appearance/fonts.cpp
  appearance/scale.cpp
  appearance/skin_art.cpp
  appearance/skin_source.cpp
  appearance/skin_strip.cpp
  settings/device.cpp
  settings/diary_settings.cpp
  settings/install_path.cpp
  settings/keyboard_layouts.cpp
  settings/registration.cpp
  settings/settings_key.cpp
)
target_link_libraries(diary_models PUBLIC diary_pure pocketpc_headers PRIVATE diary_warnings minizip)

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
  controls/check_list.cpp
  controls/dialog.cpp
  controls/full_screen_dialog.cpp
  controls/preview_window.cpp
  controls/title_band.cpp
  controls/window.cpp
  ${pages}
)
target_link_options(DiarySettings PRIVATE -municode $<$<CONFIG:MinSizeRel,Release>:-s>)
target_link_libraries(DiarySettings PRIVATE
  diary_art diary_models diary_warnings pocketpc_headers coredll aygshell commctrl richink
  inkx)
add_dependencies(DiarySettings DiaryRes)
