// Any bytes are a settings file. What was read of one reads the same once it is written anew.
#include "settings/settings_file.h"

#include "tests/fuzz/fuzz.h"

namespace {

struct Copier : SettingsSink {
    SettingsFileWriter writer;
    std::size_t depth = 0;

    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        writer.Begin(root, path);
        return true;
    }
    bool EnterKey(const std::wstring& name) override {
        writer.BeginKey(name);
        ++depth;
        return true;
    }
    void LeaveKey() override {
        REQUIRE(depth-- > 0);
        writer.EndKey();
    }
    bool PutText(const std::wstring& name, const std::wstring& text) override {
        writer.Text(name, text);
        return true;
    }
    bool PutNumber(const std::wstring& name, std::uint32_t number) override {
        writer.Number(name, number);
        return true;
    }
    bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) override {
        // Bytes that are none cannot be written so that they are read again.
        if (!bytes.empty()) writer.Binary(name, bytes);
        return true;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Copier first;
    if (!ReadSettingsFile({data, size}, first)) return 0;
    REQUIRE(first.depth == 0);
    first.writer.End();
    REQUIRE(first.writer.bytes.size() <= size);
    Copier second;
    REQUIRE(ReadSettingsFile(first.writer.bytes, second));
    second.writer.End();
    REQUIRE(first.writer.bytes == second.writer.bytes);
    return 0;
}
