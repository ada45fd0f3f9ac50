#include <CLI/CLI.hpp>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "settings/settings_file_facts.h"
#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/commands/print_findings.h"
#include "tools/diarykit/known_values.h"
#include "tools/diarykit/settings_check.h"
#include "tools/diarykit/settings_tree.h"
#include "tools/diarykit/text.h"

namespace {

using Json = nlohmann::ordered_json;

// A number as its page words it; empty where it has no words for it.
std::string WordsFor(const KnownValue& known, const StoredValue& value) {
    if (value.type != SettingsType::kNumber) return {};
    for (const ShownValue* shown : known.shown) {
        for (const ShownValue::Entry& entry : shown->entries) {
            if (static_cast<std::uint32_t>(entry.number) == value.number) return entry.text;
        }
    }
    return {};
}

std::string PagesOf(const KnownValue& known) {
    std::string pages;
    for (const ShownValue* shown : known.shown) {
        pages += (pages.empty() ? "" : ", ") + shown->page;
    }
    return pages;
}

std::string LabelOf(const KnownValue& known) {
    return known.shown.empty() ? "" : known.shown.front()->label;
}

// What the program's tables know of a value, in brackets.
std::string Remark(const KnownValue& known, const StoredValue& value) {
    std::string remark;
    const auto add = [&remark](const std::string& part) {
        if (!part.empty()) remark += (remark.empty() ? "" : "; ") + part;
    };
    if (const std::string words = WordsFor(known, value); !words.empty()) add('"' + words + '"');
    if (const std::string label = LabelOf(known); !label.empty()) add('"' + label + '"');
    if (!known.shown.empty()) add("on " + PagesOf(known));
    if (known.entry && known.shown.empty()) add("on no page");
    if (known.entry) add("default " + DefaultOf(*known.entry));
    return remark.empty() ? remark : "  [" + remark + "]";
}

Json JsonOf(const std::wstring& key, const KnownValue& known, const StoredValue& value) {
    Json json = {
        {"key", ToUtf8(key)}, {"name", ToUtf8(value.name)}, {"type", TypeName(value.type)}};
    switch (value.type) {
        case SettingsType::kText: json["value"] = ToUtf8(value.text); break;
        case SettingsType::kNumber: json["value"] = value.number; break;
        case SettingsType::kBinary: json["value"] = value.bytes; break;
    }
    if (!known.entry) return json;
    json["default"] = DefaultOf(*known.entry);
    json["pages"] = Json::array();
    for (const ShownValue* shown : known.shown) json["pages"].push_back(shown->page);
    json["label"] = LabelOf(known);
    json["shown"] = WordsFor(known, value);
    return json;
}

int Show(const std::string& path, bool asJson) {
    const StoredSettings settings = ReadSettings(path);
    Json list = Json::array();
    for (const StoredKey& key : settings.keys) {
        const std::wstring full = FullPath(settings, key);
        const auto below = PathInProductKey(settings, key);
        if (!asJson) std::printf("%s\n", ToUtf8(full).c_str());
        for (const StoredValue& value : key.values) {
            const KnownValue known = below ? FindKnownValue(*below, value.name) : KnownValue{};
            if (asJson) {
                list.push_back(JsonOf(full, known, value));
            } else {
                std::printf("  %s = %s%s\n", Plain(value.name).c_str(), Describe(value).c_str(),
                            Remark(known, value).c_str());
            }
        }
    }
    if (asJson) {
        const Json all = {{"whole", settings.whole}, {"values", list}};
        std::printf("%s\n", all.dump(1).c_str());
        return settings.whole ? 0 : 1;
    }
    return PrintFindings(settings.whole ? std::vector<Finding>{} : std::vector{NotWhole(path)},
                         false);
}

}  // namespace

void AddSettingsShow(CLI::App& settings, int& exitCode) {
    struct Options {
        std::string path;
        bool json = false;
    };
    CLI::App* const command = settings.add_subcommand(
        "show",
        "Shows every key and value of a settings file, and of known values the page that edits "
        "them, what they are called there, and their default.");
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, "A settings file (.dias)")->required();
    command->add_flag("--json", options->json, "Write JSON");
    command->callback([options, &exitCode] { exitCode = Show(options->path, options->json); });
}
