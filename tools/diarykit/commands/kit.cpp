#include "tools/diarykit/commands/kit.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/files.h"

int RunKit(const std::vector<std::string>& arguments) {
    int exitCode = kFine;
    CLI::App kit("Looks into the files of Lum Diary Settings, checks and makes them.", "diarykit");
    kit.set_version_flag("--version", DIARY_VERSION);
    kit.footer("Exit codes: 0 fine, 1 found something, 2 wrong use.");
    kit.allow_windows_style_options(false);  // Paths may begin with a slash.
    kit.require_subcommand(1);

    CLI::App* const settings = kit.add_subcommand("settings", "Settings files (.dias)");
    settings->require_subcommand(1);
    AddSettingsShow(*settings, exitCode);
    AddSettingsDiff(*settings, exitCode);
    AddSettingsCheck(*settings, exitCode);
    AddSettingsToReg(*settings, exitCode);
    AddSettingsFromReg(*settings, exitCode);

    CLI::App* const language = kit.add_subcommand("language", "Language files, for translators");
    language->require_subcommand(1);
    AddLanguageCheck(*language, exitCode);
    AddLanguageUpdate(*language, exitCode);
    AddLanguagePseudo(*language, exitCode);

    CLI::App* const skin = kit.add_subcommand("skin", "Skins, for those who draw them");
    skin->require_subcommand(1);
    AddSkinCheck(*skin, exitCode);
    AddSkinSheet(*skin, exitCode);

    CLI::App* const icons = kit.add_subcommand("icons", "Category icons and their catalogue");
    icons->require_subcommand(1);
    AddIconsCheck(*icons, exitCode);
    AddIconsList(*icons, exitCode);

    CLI::App* const layout = kit.add_subcommand("layout", "Layouts of phone keypads");
    layout->require_subcommand(1);
    AddLayoutCheck(*layout, exitCode);

    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        kit.parse(reversed);
    } catch (const CLI::ParseError& error) {
        return kit.exit(error) == 0 ? kFine : kWrongUse;
    } catch (const UseError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return kWrongUse;
    }
    return exitCode;
}
