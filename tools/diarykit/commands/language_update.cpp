#include <CLI/CLI.hpp>
#include <cstdio>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/language_lines.h"
#include "tools/diarykit/language_update.h"

void AddLanguageUpdate(CLI::App& language, int&) {
    struct Options {
        std::string oldPath, templatePath, output;
    };
    CLI::App* const command = language.add_subcommand(
        "update",
        "Brings a translation to the texts of a newer template: keeps what is translated, adds "
        "what is new, and puts what is gone behind a line that says so, where it does no harm.");
    const auto options = std::make_shared<Options>();
    command->add_option("OLD", options->oldPath, "The translation")->required();
    command->add_option("TEMPLATE", options->templatePath, "The file that the program writes")
        ->required();
    command->add_option("-o,--output", options->output,
                        "Where to write (UTF-16); without it the standard output");
    command->callback([options] {
        const LanguageText old = ReadLanguageText(options->oldPath);
        const LanguageText newer = ReadLanguageText(options->templatePath);
        const LanguageUpdate update = UpdateLanguage(old.characters, newer.characters);
        WriteOutput(options->output, Utf16File(update.text));
        std::fprintf(stderr, "%zu new, %zu gone\n", update.added, update.gone);
    });
}
