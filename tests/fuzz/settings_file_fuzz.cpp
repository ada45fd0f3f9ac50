// Any bytes are a settings file. What was read of one reads the same once it is written anew; and
// what any bytes make a writer write is read as it was written.
#include "settings/settings_file.h"

#include <algorithm>

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

// A tree after the bytes' orders, whose names are as the registry's: not empty, without zeros.
class Tree {
  public:
    Tree(std::span<const std::uint8_t> orders, Copier& sink) : orders_(orders), sink_(sink) {
        sink_.OpenRoot(Next(), {});
        sink_.EnterKey({});
        while (!orders_.empty()) Add();
        while (sink_.depth > 0) sink_.LeaveKey();
        sink_.writer.End();
    }

  private:
    std::uint8_t Next() {
        if (orders_.empty()) return 0;
        const std::uint8_t next = orders_.front();
        orders_ = orders_.subspan(1);
        return next;
    }
    std::wstring Text(std::size_t length, int least) {
        std::wstring text;
        while (text.size() < length) {
            text += static_cast<wchar_t>(std::max<int>(Next() | Next() << 8, least));
        }
        return text;
    }
    void Add() {
        const std::uint8_t order = Next();
        const std::size_t size = order / 8 % 16;
        const std::wstring name = Text(1 + order / 128, 1);
        switch (order % 8) {
            case 0: sink_.EnterKey(name); break;
            case 1:
                if (sink_.depth > 1) sink_.LeaveKey();
                break;
            case 2: sink_.PutText(name, Text(size, 0)); break;
            case 3: sink_.PutNumber(name, Next() | std::uint32_t{Next()} << 24); break;
            case 4: {
                std::vector<std::uint8_t> bytes(size);
                for (std::uint8_t& byte : bytes) byte = Next();
                sink_.PutBinary(name, bytes);
                break;
            }
            default: sink_.PutBinary(name, {});
        }
    }

    std::span<const std::uint8_t> orders_;
    Copier& sink_;
};

void WriteAndRead(std::span<const std::uint8_t> orders) {
    Copier written, read;
    const Tree tree(orders, written);
    REQUIRE(Search(written.writer.bytes).whole);
    REQUIRE(ReadSettingsFile(written.writer.bytes, read));
    REQUIRE(read.notes == written.notes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ReadAndWrite({data, size});
    WriteAndRead({data, size});
    return 0;
}
