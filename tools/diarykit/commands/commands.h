#pragma once

namespace CLI {
class App;
}

// Each adds a command to its group; it is carried out while the arguments are parsed, throws a
// UseError for what it cannot do, and leaves its exit code.
void AddSettingsShow(CLI::App& settings, int& exitCode);
void AddSettingsDiff(CLI::App& settings, int& exitCode);
void AddSettingsCheck(CLI::App& settings, int& exitCode);
void AddSettingsToReg(CLI::App& settings, int& exitCode);
void AddSettingsFromReg(CLI::App& settings, int& exitCode);
void AddLanguageCheck(CLI::App& language, int& exitCode);
void AddLanguageUpdate(CLI::App& language, int& exitCode);
void AddLanguagePseudo(CLI::App& language, int& exitCode);
void AddSkinCheck(CLI::App& skin, int& exitCode);
void AddSkinSheet(CLI::App& skin, int& exitCode);
void AddIconsCheck(CLI::App& icons, int& exitCode);
void AddIconsList(CLI::App& icons, int& exitCode);
void AddLayoutCheck(CLI::App& layout, int& exitCode);
