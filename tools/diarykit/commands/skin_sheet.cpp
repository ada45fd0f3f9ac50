#include <CLI/CLI.hpp>

#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/skin_pieces.h"

namespace {

constexpr char kHead[] =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>Skin</title>\n"
    "<style>\nbody { font-family: sans-serif; font-size: 80%; }\n"
    "figure { display: inline-block; margin: 4px; width: 110px; text-align: center; "
    "vertical-align: top; }\n"
    "span { display: inline-block; padding: 6px; }\n.light { background: #ffffff; }\n"
    ".dark { background: #202020; }\nimg { display: block; image-rendering: pixelated; }\n"
    "body { background: #c0c0c0; }\n</style>\n</head>\n<body>\n";

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&') {
            escaped += "&amp;";
        } else if (c == '<') {
            escaped += "&lt;";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

// A piece on both grounds, with its name. One without an area cannot be shown.
std::string FigureOf(const SkinMember& member, std::size_t i) {
    const Picture& piece = member.pieces[i];
    const bool isNamed = i < member.pieceNames->size();
    std::string figure = "<figure>";
    if (piece.width > 0 && piece.height > 0) {
        const std::string size = " width=\"" + std::to_string(piece.width) + "\" height=\"" +
                                 std::to_string(piece.height) + "\"";
        const std::string image = "<img alt=\"\"" + size + " src=\"" + PictureUri(piece) + "\">";
        figure +=
            "<span class=\"light\">" + image + "</span><span class=\"dark\">" + image + "</span>";
    } else {
        figure += "(empty)";
    }
    return figure + "<figcaption>" + std::to_string(i + 1) + " " +
           (isNamed ? (*member.pieceNames)[i] : "not used") + "</figcaption></figure>\n";
}

std::string SheetOf(const std::string& path) {
    const SkinFiles files(path);
    std::string page = kHead;
    page += "<h1>" + Escaped(path) + "</h1>\n";
    for (const int dpi : {96, 192}) {
        for (const SkinMember& member : ReadSkin(files, dpi)) {
            page += "<h2>" + member.name + "</h2>\n";
            if (member.state != SkinMember::State::kRead)
                page += "<p>There is no such bitmap.</p>\n";
            for (std::size_t i = 0; i < member.pieces.size(); ++i) page += FigureOf(member, i);
        }
    }
    return page + "</body>\n</html>\n";
}

}  // namespace

void AddSkinSheet(CLI::App& skin, int&) {
    struct Options {
        std::string path, output;
    };
    CLI::App* const command = skin.add_subcommand(
        "sheet",
        "Writes a page, complete in itself, with all pieces of a skin as the program cuts them, "
        "on light and dark ground, with their names.");
    const auto options = std::make_shared<Options>();
    command->add_option("SKIN", options->path, "A folder or a zip archive")->required();
    command->add_option("OUT.html", options->output, "The page to write")->required();
    command->callback([options] {
        const std::string page = SheetOf(options->path);
        WriteOutput(options->output,
                    {reinterpret_cast<const std::uint8_t*>(page.data()), page.size()});
    });
}
