#include <CLI/CLI.hpp>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "appearance/categories/icon_catalogue.h"
#include "appearance/categories/icon_header.h"
#include "appearance/categories/icon_picture.h"
#include "base/scale.h"
#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/md5.h"
#include "tools/diarykit/text.h"

namespace {

constexpr char kDamaged[] = "cut or contradicts itself, so that the program has no groups";

struct Options {
    std::string folder, catalogue;
    int dpi = 96;
    bool json = false;
};

int Check(const Options& options) {
    IconCatalogue catalogue;
    std::vector<Finding> findings;
    if (!options.catalogue.empty() && !catalogue.Read(ReadInput(options.catalogue))) {
        findings.push_back({options.catalogue, 0, kDamaged});
    }
    const int largest = ScaleLength(kLargestIcon, options.dpi);
    for (const std::string& path : BitmapsIn(options.folder)) {
        const std::vector<std::uint8_t> file = ReadInput(path);
        const auto header = ReadIconHeader(file);
        if (!header) {
            findings.push_back({path, 0, "no whole, uncompressed bitmap; it is passed over"});
            continue;
        }
        if (!ReadIconPicture(file, *header)) {
            findings.push_back(
                {path, 0, "its color masks are empty, overlap or have gaps; it is passed over"});
            continue;
        }
        const BitmapHeader& bitmap = header->info;
        const std::string area =
            std::to_string(bitmap.width) + " x " + std::to_string(bitmap.height);
        if (bitmap.width > largest || bitmap.height > largest) {
            findings.push_back({path, 0,
                                area + " pixels, more than " + std::to_string(largest) +
                                    "; it is passed over on screens of " +
                                    std::to_string(options.dpi) + " dpi"});
            continue;
        }
        if (options.json) continue;
        const auto group = catalogue.FindGroup(Md5Of(file));
        const std::string title = group ? ToUtf8(catalogue.titles()[*group]) : "Other Icons";
        std::printf("%s: %s, %s\n", path.c_str(), area.c_str(), title.c_str());
    }
    return PrintFindings(findings, options.json);
}

int List(const std::string& path, bool asJson) {
    IconCatalogue catalogue;
    if (!catalogue.Read(ReadInput(path))) return PrintFindings({{path, 0, kDamaged}}, asJson);
    auto json = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < catalogue.titles().size(); ++i) {
        const std::string title = ToUtf8(catalogue.titles()[i]);
        json.push_back({{"title", title}, {"icons", catalogue.CountOf(i)}});
        if (!asJson) std::printf("%s (%zu)\n", title.c_str(), catalogue.CountOf(i));
    }
    if (asJson) std::printf("%s\n", json.dump(1).c_str());
    return 0;
}

}  // namespace

void AddIconsCheck(CLI::App& icons, int& exitCode) {
    CLI::App* const command = icons.add_subcommand(
        "check",
        "Says of each bitmap of a folder how large it is and in which group it stands, and which "
        "ones the program passes over.");
    const auto options = std::make_shared<Options>();
    command->add_option("FOLDER", options->folder, "A folder of bitmaps")->required();
    command->add_option("icons.dat", options->catalogue, "The catalogue with the groups");
    command->add_option("--dpi", options->dpi, "The screen's density; without it 96")
        ->check(CLI::Range(72, 600));
    command->add_flag("--json", options->json, "Write what is wrong as JSON");
    command->callback([options, &exitCode] { exitCode = Check(*options); });
}

void AddIconsList(CLI::App& icons, int& exitCode) {
    CLI::App* const command = icons.add_subcommand(
        "list", "Lists the groups of a catalogue, with how many icons each has.");
    const auto options = std::make_shared<Options>();
    command->add_option("icons.dat", options->catalogue, "The catalogue")->required();
    command->add_flag("--json", options->json, "Write JSON");
    command->callback([options, &exitCode] { exitCode = List(options->catalogue, options->json); });
}
