#include <CLI/CLI.hpp>
#include <cstdio>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/layout_check.h"
#include "tools/diarykit/text.h"

void AddLayoutCheck(CLI::App& layout, int& exitCode) {
    struct Options {
        std::string path;
        bool json = false;
    };
    CLI::App* const command = layout.add_subcommand(
        "check",
        "Says of each keyboard layout in a text of lines \"name=layout\", such as "
        "\"Latin=labc(abc) def(def)\", which keys it has or what is wrong with it.");
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, "A text in UTF-8 or UTF-16")->required();
    command->add_flag("--json", options->json, "Write what is wrong as JSON");
    command->callback([options, &exitCode] {
        std::vector<std::string> shown;
        const std::wstring text = TextOfFile(ReadInput(options->path));
        const std::vector<Finding> findings = CheckLayouts(options->path, text, shown);
        if (!options->json) {
            for (const std::string& line : shown) std::printf("%s\n", line.c_str());
        }
        exitCode = PrintFindings(findings, options->json);
    });
}
