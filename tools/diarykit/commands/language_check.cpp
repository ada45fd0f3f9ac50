#include <CLI/CLI.hpp>
#include <cstdio>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/language_check.h"
#include "tools/diarykit/language_lines.h"
#include "tools/diarykit/text.h"

namespace {

struct Options {
    std::string templatePath, path, library;
    bool json = false, context = false;
    std::size_t line = 0;
};

// The library beside the template, where the program has both, unless another was named.
TextPlaces Places(const Options& options) {
    const std::string beside = BesideFile(options.templatePath, "DiaryRes.Dll");
    const std::string path = !options.library.empty() ? options.library : beside;
    if (options.library.empty() && !IsFile(path)) {
        std::fprintf(stderr, "There is no %s, so no widths are checked.\n", path.c_str());
        return {};
    }
    TextPlaces places = PlacesOfTexts(ReadInput(path));
    if (places.empty()) throw UseError(path + ": holds no texts");
    return places;
}

// Where the text of a line is shown.
int TellContext(const Options& options) {
    const TextPlaces places = Places(options);
    const LanguageText text = ReadLanguageText(options.path);
    for (const LanguageLine& line : LanguageLines(text.characters)) {
        if (line.number != options.line || line.continued) continue;
        const auto known = places.find(line.entry.source);
        if (known == places.end()) break;
        for (const TextPlace& place : known->second) {
            std::printf("%s:%zu: %s: %s\n", options.path.c_str(), line.number,
                        Quoted(line.entry.source).c_str(), Describe(place).c_str());
        }
        return 0;
    }
    throw UseError(options.path + ":" + std::to_string(options.line) +
                   ": holds no text that is known");
}

int Check(const Options& options) {
    const LanguageText templateText = ReadLanguageText(options.templatePath);
    const LanguageCheck check =
        CheckLanguage(options.path, ReadInput(options.path), templateText.characters,
                      Places(options), options.context);
    // A check against nothing would say nothing.
    if (check.known == 0) throw UseError(options.templatePath + ": holds no texts");
    const int exitCode = PrintFindings(check.findings, options.json);
    if (!options.json) std::printf("%zu texts, %zu wrong\n", check.known, check.findings.size());
    return exitCode;
}

}  // namespace

void AddLanguageCheck(CLI::App& language, int& exitCode) {
    CLI::App* const command = language.add_subcommand(
        "check",
        "Compares a translation with the template that the program writes, and says line by line "
        "what is wrong: a text without a translation, one that the program does not have or that "
        "stands twice, a line that is too long, a second bar, other placeholders (%s, %d) or line "
        "breaks than the text has, and a translation that does not fit its control.");
    const auto options = std::make_shared<Options>();
    command->add_option("TEMPLATE", options->templatePath, "The file that the program writes")
        ->required();
    command->add_option("FILE", options->path, "The translation")->required();
    command->add_option("--library", options->library,
                        "The program's DiaryRes.Dll, for the controls' widths; without it the one "
                        "beside TEMPLATE");
    command->add_flag("--context", options->context, "Say of each text where it is shown");
    command->add_option("--line", options->line,
                        "Check nothing; say where the text of this line of FILE is shown");
    command->add_flag("--json", options->json, "Write JSON");
    command->callback([options, &exitCode] {
        exitCode = options->line ? TellContext(*options) : Check(*options);
    });
}
