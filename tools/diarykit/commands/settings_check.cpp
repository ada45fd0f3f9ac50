#include <CLI/CLI.hpp>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/settings_check.h"

void AddSettingsCheck(CLI::App& settings, int& exitCode) {
    struct Options {
        std::string path;
        bool json = false;
    };
    CLI::App* const command = settings.add_subcommand(
        "check",
        "Says what is odd about a settings file: it cannot be read to its end, writes outside the "
        "diary's own key, or holds unknown names, other types than the program's, or values that "
        "no page would show.");
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, "A settings file (.dias)")->required();
    command->add_flag("--json", options->json, "Write JSON");
    command->callback([options, &exitCode] {
        exitCode =
            PrintFindings(CheckSettings(options->path, ReadInput(options->path)), options->json);
    });
}
