#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/skin_pieces.h"

namespace {

using State = SkinMember::State;

// "38 of 16 x 16, 2 of 16 x 9"
std::string SizesOf(const SkinMember& member) {
    std::map<std::pair<int, int>, int, std::greater<>> sizes;
    for (const Picture& piece : member.pieces) ++sizes[{piece.width, piece.height}];
    std::string text;
    for (const auto& [size, count] : sizes) {
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " of " +
                std::to_string(size.first) + " x " + std::to_string(size.second);
    }
    return text;
}

// Why the program does not take a skin with this member; empty where it does.
std::string FaultOf(const SkinMember& member) {
    switch (member.state) {
        case State::kMissing: return "missing";
        case State::kUnreadable: return "cannot be read";
        case State::kNoBitmap: return "no whole, uncompressed 24-bit bitmap";
        case State::kRead: break;
    }
    if (member.IsComplete()) return {};
    return std::to_string(member.pieces.size()) + " pieces, at least " +
           std::to_string(member.needed) + " are needed";
}

std::vector<std::string> RemarksOf(const SkinMember& member) {
    std::vector<std::string> remarks;
    for (std::size_t i = 0; i < member.pieces.size() && i < member.pieceNames->size(); ++i) {
        const Picture& piece = member.pieces[i];
        if (piece.width > 0 && piece.height > 0) continue;
        remarks.push_back("piece " + std::to_string(i + 1) + ", " + (*member.pieceNames)[i] +
                          ", is empty");
    }
    return remarks;
}

int Check(const std::string& path, const std::vector<int>& densities, bool asJson) {
    const SkinFiles files(path);
    std::vector<Finding> findings;
    auto json = nlohmann::ordered_json::array();
    for (const int dpi : densities) {
        const std::vector<SkinMember> members = ReadSkin(files, dpi);
        bool taken = true;
        for (const SkinMember& member : members) taken = taken && member.IsComplete();
        nlohmann::ordered_json screen = {{"dpi", dpi}, {"taken", taken}};
        if (!asJson) {
            std::printf("screens of %d dpi: %s\n", dpi,
                        taken ? "taken" : "not taken, the skin there was before stays");
        }
        for (const SkinMember& member : members) {
            const std::string fault = FaultOf(member), sizes = SizesOf(member);
            screen["members"].push_back({{"name", member.name},
                                         {"pieces", member.pieces.size()},
                                         {"sizes", sizes},
                                         {"fault", fault}});
            if (!asJson && member.state == State::kRead) {
                std::printf("  %s: %s\n", member.name.c_str(), sizes.c_str());
            }
            const std::string where =
                path + ": " + member.name + " (" + std::to_string(dpi) + " dpi)";
            if (!fault.empty()) findings.push_back({where, 0, fault});
            for (const auto& remark : RemarksOf(member)) findings.push_back({where, 0, remark});
        }
        json.push_back(std::move(screen));
    }
    if (!asJson) return PrintFindings(findings, false);
    std::printf("%s\n", json.dump(1).c_str());
    return findings.empty() ? 0 : 1;
}

}  // namespace

void AddSkinCheck(CLI::App& skin, int& exitCode) {
    struct Options {
        std::string path;
        std::vector<int> densities = {96, 192};
        bool json = false;
    };
    CLI::App* const command = skin.add_subcommand(
        "check",
        "Says of each file of a skin whether it is there and can be read, how many pieces it has "
        "and of what size, and whether the program takes the skin on screens of each density.");
    const auto options = std::make_shared<Options>();
    command->add_option("SKIN", options->path, "A folder or a zip archive")->required();
    command
        ->add_option("--dpi", options->densities,
                     "The densities to look at, in dots per inch; without it 96 and 192")
        ->check(CLI::Range(72, 600))
        ->delimiter(',');
    command->add_flag("--json", options->json, "Write JSON");
    command->callback([options, &exitCode] {
        exitCode = Check(options->path, options->densities, options->json);
    });
}
