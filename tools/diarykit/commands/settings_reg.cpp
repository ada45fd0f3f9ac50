#include <CLI/CLI.hpp>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/reg_file.h"
#include "tools/diarykit/settings_check.h"
#include "tools/diarykit/text.h"

namespace {

struct Options {
    std::string path, output, under;
    bool json = false;
};

int ToReg(const Options& options) {
    const StoredSettings settings = ReadSettings(options.path);
    if (!settings.whole) return PrintFindings({NotWhole(options.path)}, options.json);
    const auto text = FormatReg(settings, FromUtf8(options.under));
    if (!text) {
        return PrintFindings({{options.path, 0, "has keys whose names a .reg file cannot hold"}},
                             options.json);
    }
    WriteOutput(options.output, Utf16File(*text));
    return 0;
}

int FromReg(const Options& options) {
    std::vector<RegFault> faults;
    const std::wstring text = TextOfFile(ReadInput(options.path));
    const StoredSettings settings = ParseReg(text, FromUtf8(options.under), faults);
    std::vector<Finding> findings;
    for (const RegFault& fault : faults) findings.push_back({options.path, fault.line, fault.text});
    if (!findings.empty()) return PrintFindings(findings, options.json);
    WriteOutput(options.output, WriteSettings(settings));
    return 0;
}

void Add(CLI::App& settings, const char* name, const char* description, const char* input,
         int& exitCode, int (*run)(const Options&)) {
    CLI::App* const command = settings.add_subcommand(name, description);
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, input)->required();
    command->add_option("-o,--output", options->output,
                        "Where to write; without it the standard output");
    command->add_option("--under", options->under,
                        "The key below which the .reg file has the settings, such as "
                        "\"HKEY_CURRENT_USER\\Software\\PocketPC Devices\\Default\", where a "
                        "simulated device keeps its registry");
    command->add_flag("--json", options->json, "Say as JSON what is wrong");
    command->callback([options, &exitCode, run] { exitCode = run(*options); });
}

}  // namespace

void AddSettingsToReg(CLI::App& settings, int& exitCode) {
    Add(settings, "to-reg", "Writes a settings file in the desktop's .reg format (UTF-16).",
        "A settings file (.dias)", exitCode, ToReg);
}

void AddSettingsFromReg(CLI::App& settings, int& exitCode) {
    Add(settings, "from-reg",
        "Makes a settings file of a .reg file (UTF-16 or UTF-8) with texts, dwords and hex bytes "
        "of one root key.",
        "A .reg file", exitCode, FromReg);
}
