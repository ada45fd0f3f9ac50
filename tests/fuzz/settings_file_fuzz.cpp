// Any bytes are a settings file. What was read of one reads the same once it is written anew. (What
// any settings make a writer write is diarykit's to read as it was written.)
#include "settings/settings_file.h"

#include "settings/settings_file_facts.h"
#include "settings/settings_file_search.h"
#include "tests/fuzz/fuzz.h"

namespace {

// Notes what it is given, and writes it.
struct Copier : SettingsSink {
    SettingsFileWriter writer;
    std::vector<std::wstring> notes;
    std::size_t depth = 0;
    bool writesEmpty = true;

    bool Note(wchar_t kind, const std::wstring& name, std::wstring data) {
        notes.push_back(kind + name);
        notes.push_back(std::move(data));
        return true;
    }
    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        writer.Begin(root, path);
        return Note(L'r', path, std::to_wstring(root));
    }
    bool EnterKey(const std::wstring& name) override {
        writer.BeginKey(name);
        ++depth;
        return Note(L'{', name, {});
    }
    void LeaveKey() override {
        REQUIRE(depth-- > 0);
        writer.EndKey();
        Note(L'}', {}, {});
    }
    bool PutText(const std::wstring& name, const std::wstring& text) override {
        writer.Text(name, text);
        return Note(L't', name, text);
    }
    bool PutNumber(const std::wstring& name, std::uint32_t number) override {
        writer.Number(name, number);
        return Note(L'n', name, std::to_wstring(number));
    }
    bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) override {
        if (bytes.empty() && !writesEmpty) return true;
        writer.Binary(name, bytes);
        return Note(L'b', name, {bytes.begin(), bytes.end()});
    }
};

SettingsFileReading Search(std::span<const std::uint8_t> file) {
    SettingsFileReading reading = FindSettingsFileReading(file);
    REQUIRE(reading.states <= kStatesPerByte * file.size());
    REQUIRE(reading.whole || reading.empty.empty());
    return reading;
}

// Names may hold anything here, so that a value without bytes would not be the only one that can be
// meant by what is written of it.
void ReadAndWrite(std::span<const std::uint8_t> file) {
    Copier first;
    first.writesEmpty = false;
    const bool whole = ReadSettingsFile(file, first);
    REQUIRE(whole == Search(file).whole && whole == LookThroughSettingsFile(file).whole);
    if (!whole) return;
    REQUIRE(first.depth == 0);
    first.writer.End();
    REQUIRE(first.writer.bytes.size() <= file.size());
    Copier second;
    REQUIRE(ReadSettingsFile(first.writer.bytes, second));
    REQUIRE(first.notes == second.notes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ReadAndWrite({data, size});
    return 0;
}
