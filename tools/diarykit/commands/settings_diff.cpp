#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "settings/settings_file_facts.h"
#include "tools/diarykit/commands/commands.h"
#include "tools/diarykit/findings.h"
#include "tools/diarykit/settings_check.h"
#include "tools/diarykit/settings_tree.h"
#include "tools/diarykit/text.h"

namespace {

// A value by where it is in the registry.
struct Place {
    std::wstring key;
    StoredValue value;
};

std::vector<Place> PlacesOf(const StoredSettings& settings) {
    std::vector<Place> places;
    for (const StoredKey& key : settings.keys) {
        for (const StoredValue& value : key.values) {
            places.push_back({FullPath(settings, key), value});
        }
    }
    return places;
}

const StoredValue* Find(const std::vector<Place>& places, const Place& wanted) {
    const auto found = std::find_if(places.begin(), places.end(), [&](const Place& place) {
        return IsSameAsciiName(place.value.name, wanted.value.name) &&
               IsSameAsciiName(place.key, wanted.key);
    });
    return found == places.end() ? nullptr : &found->value;
}

class Difference {
  public:
    explicit Difference(bool asJson) : asJson_(asJson) {}

    // Of each only one may be null.
    void Add(const Place& place, const StoredValue* first, const StoredValue* second) {
        const std::string name = Plain(place.key + L'\\' + place.value.name);
        if (asJson_) {
            nlohmann::ordered_json json = {{"key", ToUtf8(place.key)},
                                           {"name", ToUtf8(place.value.name)}};
            if (first) json["first"] = Describe(*first);
            if (second) json["second"] = Describe(*second);
            list_.push_back(std::move(json));
        } else {
            if (first) std::printf("-%s = %s\n", name.c_str(), Describe(*first).c_str());
            if (second) std::printf("+%s = %s\n", name.c_str(), Describe(*second).c_str());
        }
        found_ = true;
    }
    int Finish() const {
        if (asJson_) std::printf("%s\n", list_.dump(1).c_str());
        return found_ ? 1 : 0;
    }

  private:
    bool asJson_;
    bool found_ = false;
    nlohmann::ordered_json list_ = nlohmann::ordered_json::array();
};

int Diff(const std::string& firstPath, const std::string& secondPath, bool asJson) {
    const StoredSettings a = ReadSettings(firstPath), b = ReadSettings(secondPath);
    const std::vector<Place> first = PlacesOf(a), second = PlacesOf(b);
    Difference difference(asJson);
    for (const Place& place : first) {
        const StoredValue* const other = Find(second, place);
        const bool same =
            other && other->type == place.value.type && Describe(*other) == Describe(place.value);
        if (!same) difference.Add(place, &place.value, other);
    }
    for (const Place& place : second) {
        if (!Find(first, place)) difference.Add(place, nullptr, &place.value);
    }
    const int exitCode = difference.Finish();
    std::vector<Finding> faults;
    if (!a.whole) faults.push_back(NotWhole(firstPath));
    if (!b.whole) faults.push_back(NotWhole(secondPath));
    for (const Finding& fault : faults) {
        std::fprintf(stderr, "%s: %s\n", fault.file.c_str(), fault.text.c_str());
    }
    return faults.empty() ? exitCode : 1;
}

}  // namespace

void AddSettingsDiff(CLI::App& settings, int& exitCode) {
    struct Options {
        std::string first, second;
        bool json = false;
    };
    CLI::App* const command = settings.add_subcommand(
        "diff",
        "Says in which values two settings files differ, whatever the order they stand in.");
    const auto options = std::make_shared<Options>();
    command->add_option("A", options->first, "A settings file (.dias)")->required();
    command->add_option("B", options->second, "Another one")->required();
    command->add_flag("--json", options->json, "Write JSON");
    command->callback(
        [options, &exitCode] { exitCode = Diff(options->first, options->second, options->json); });
}
