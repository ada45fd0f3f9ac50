#include "settings/settings_file_facts.h"

#include <algorithm>
#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "settings/settings_file.h"

namespace {

class FactsSink : public SettingsSink {
  public:
    bool writesOutside() const { return writesOutside_; }

    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        root_ = root;
        path_ = path;
        Look();
        return true;
    }
    bool EnterKey(const std::wstring& name) override {
        lengths_.push_back(path_.size());
        path_ += L'\\' + name;
        Look();
        return true;
    }
    void LeaveKey() override {
        path_.resize(lengths_.back());
        lengths_.pop_back();
        place_ = PlaceOfKey(root_, path_);
    }
    bool PutText(const std::wstring&, const std::wstring&) override { return Put(); }
    bool PutNumber(const std::wstring&, std::uint32_t) override { return Put(); }
    bool PutBinary(const std::wstring&, std::span<const std::uint8_t>) override { return Put(); }

  private:
    void Look() {
        place_ = PlaceOfKey(root_, path_);
        if (place_ == KeyPlace::kOutside) writesOutside_ = true;
    }
    bool Put() {
        if (place_ != KeyPlace::kInside) writesOutside_ = true;
        return true;
    }

    std::uint32_t root_ = 0;
    std::wstring path_;
    std::vector<std::size_t> lengths_;  // of the path, before each key
    KeyPlace place_ = KeyPlace::kOutside;
    bool writesOutside_ = false;
};

wchar_t Lower(wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c; }

}  // namespace

SettingsFileFacts LookThroughSettingsFile(std::span<const std::uint8_t> bytes) {
    FactsSink sink;
    const bool whole = ReadSettingsFile(bytes, sink);
    return {whole, sink.writesOutside()};
}

KeyPlace PlaceOfKey(std::uint32_t root, std::wstring_view path) {
    if (root != kLocalMachine) return KeyPlace::kOutside;
    std::wstring_view product = kProductKey;
    for (;;) {
        const std::wstring_view expected = TakeKeyName(product);
        if (expected.empty()) return KeyPlace::kInside;
        const std::wstring_view name = TakeKeyName(path);
        if (name.empty()) return KeyPlace::kAbove;
        if (!IsSameAsciiName(name, expected)) return KeyPlace::kOutside;
    }
}

std::wstring_view TakeKeyName(std::wstring_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(L'\\'), path.size()));
    const std::wstring_view name = path.substr(0, path.find(L'\\'));
    path.remove_prefix(name.size());
    return name;
}

bool IsSameAsciiName(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t a, wchar_t b) { return Lower(a) == Lower(b); });
}
