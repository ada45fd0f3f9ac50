#include "settings/settings_file_search.h"

#include <compare>
#include <set>

#include "settings/settings_records.h"

namespace {

// Before a record inside the outermost key, or before the file's end where the depth is 0.
struct State {
    std::size_t position = 0;
    std::size_t depth = 0;
    auto operator<=>(const State&) const = default;
};

// A binary value that was taken as it stands, and may be an empty one.
struct Branch {
    State state;        // behind the value, if it is empty
    std::size_t empty;  // how many before it were
};

enum class Tags {
    kAsWritten,  // only where a writer puts them
    kAny,        // whatever is none is skipped, and the file's end ends a key
};

// Depth first, with what stands in the file before what may be meant. In what a writer wrote, no
// record follows the bytes that an empty value seems to have, so that each is found at once.
class Search {
  public:
    Search(std::span<const std::uint8_t> bytes, SettingsFileReading& reading)
        : bytes_(bytes), limit_(bytes.size() * kStatesPerByte), reading_(reading) {}

    bool Run(Tags tags) {
        tried_.clear();
        branches_.clear();
        branched_ = false;
        reading_.empty.clear();
        SettingsRecords records(bytes_);
        std::uint32_t root = 0;
        std::wstring path;
        SettingsRecord key;
        if (!records.TakeStart(root, path) || !records.TakeHead(key) ||
            key.tag != SettingsTag::kKey) {
            return false;
        }
        for (State state = {records.position(), 1}; !Follow(state, tags);) {
            if (branches_.empty() || reading_.states >= limit_) return false;
            const Branch branch = branches_.back();
            branches_.pop_back();
            reading_.empty.resize(branch.empty);
            reading_.empty.push_back(branch.state.position);
            state = branch.state;
        }
        return true;
    }

  private:
    // From a state on, every value as it stands. True at the file's end.
    bool Follow(State state, Tags tags) {
        SettingsRecords records(bytes_, state.position);
        SettingsRecord record;
        while (state.depth > 0) {
            if (!Try(state) || !records.TakeHead(record)) return false;
            switch (record.tag) {
                case SettingsTag::kKey: ++state.depth; break;
                case SettingsTag::kKeyEnd: --state.depth; break;
                case SettingsTag::kValue:
                    if (record.type == SettingsType::kBinary && records.IsBeforeRecord()) {
                        branched_ = true;
                        branches_.push_back(
                            {{records.position(), state.depth}, reading_.empty.size()});
                    }
                    if (!records.TakeData(record)) return false;
                    break;
                case SettingsTag::kEnd:
                    if (tags == Tags::kAsWritten) return false;
                    --state.depth;
                    break;
                default:
                    if (tags == Tags::kAsWritten) return false;
            }
            state.position = records.position();
        }
        return records.TakeEnd();
    }

    // What was tried before has led nowhere. Before the first branch nothing can be met twice.
    bool Try(const State& state) {
        if (!branched_) return true;
        if (reading_.states >= limit_ || !tried_.insert(state).second) return false;
        ++reading_.states;
        return true;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t limit_;
    SettingsFileReading& reading_;
    bool branched_ = false;
    std::set<State> tried_;
    std::vector<Branch> branches_;  // whose values may still be empty
};

}  // namespace

SettingsFileReading FindSettingsFileReading(std::span<const std::uint8_t> bytes) {
    SettingsFileReading reading;
    Search search(bytes, reading);
    reading.whole = search.Run(Tags::kAsWritten) || search.Run(Tags::kAny);
    if (!reading.whole) reading.empty.clear();
    return reading;
}
