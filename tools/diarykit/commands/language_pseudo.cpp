#include <CLI/CLI.hpp>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/language_lines.h"
#include "tools/diarykit/language_pseudo.h"
#include "tools/diarykit/text.h"

void AddLanguagePseudo(CLI::App& language, int&) {
    struct Options {
        std::string templatePath, output;
    };
    CLI::App* const command = language.add_subcommand(
        "pseudo",
        "Writes a language to try the program with: every text in brackets, accented and 40 % "
        "longer. Texts without letters, which need no translation, stay untranslated.");
    const auto options = std::make_shared<Options>();
    command->add_option("TEMPLATE", options->templatePath, "The file that the program writes")
        ->required();
    command->add_option("-o,--output", options->output,
                        "Where to write (UTF-16); without it the standard output");
    command->callback([options] {
        const LanguageText text = ReadLanguageText(options->templatePath);
        WriteOutput(options->output, Utf16File(PseudoLanguage(text.characters)));
    });
}
