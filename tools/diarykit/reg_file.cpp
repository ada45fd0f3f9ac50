#include "tools/diarykit/reg_file.h"

#include <algorithm>
#include <cstdio>

#include "base/byte_reader.h"
#include "settings/settings_file_facts.h"
#include "tools/diarykit/text.h"

namespace {

constexpr std::wstring_view kHeader = L"Windows Registry Editor Version 5.00";
constexpr std::wstring_view kOldHeader = L"REGEDIT4";
constexpr std::size_t kBytesInLine = 24;

bool IsLineBreak(wchar_t c) { return c == L'\r' || c == L'\n'; }

std::wstring InQuotes(std::wstring_view text) {
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') quoted += L'\\';
        quoted += c;
    }
    return quoted + L'"';
}

std::wstring Hex(std::uint32_t number, int digits) {
    constexpr wchar_t kDigits[] = L"0123456789abcdef";
    std::wstring text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += kDigits[number >> shift & 0xF];
    }
    return text;
}

std::wstring HexBytes(std::span<const std::uint8_t> bytes) {
    std::wstring text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text += Hex(bytes[i], 2);
        if (i + 1 < bytes.size()) text += L',';
        if (i % kBytesInLine == kBytesInLine - 1 && i + 1 < bytes.size()) text += L"\\\r\n  ";
    }
    return text;
}

// Texts that an editor would break are written as their bytes.
std::wstring DataOf(const StoredValue& value) {
    switch (value.type) {
        case SettingsType::kNumber: return L"dword:" + Hex(value.number, 8);
        case SettingsType::kBinary: return L"hex:" + HexBytes(value.bytes);
        case SettingsType::kText: break;
    }
    constexpr wchar_t kFirstShown = L' ';
    if (std::all_of(value.text.begin(), value.text.end(),
                    [](wchar_t c) { return c >= kFirstShown; })) {
        return InQuotes(value.text);
    }
    std::vector<std::uint8_t> bytes;
    for (const wchar_t c : value.text + L'\0') {
        bytes.push_back(static_cast<std::uint8_t>(c));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    return L"hex(1):" + HexBytes(bytes);
}

// A key as the text names it, and the values below it.
struct NamedKey {
    std::wstring path;  // behind the root key
    std::vector<StoredValue> values;
};

class Parser {
  public:
    Parser(std::wstring_view text, std::wstring_view under, std::vector<RegFault>& faults)
        : text_(text), under_(TidyPath(under)), faults_(faults) {}

    StoredSettings Run() {
        const std::wstring_view header = TakeLine();
        if (header != kHeader && header != kOldHeader) {
            Fault(1, "does not begin with \"" + ToUtf8(kHeader) + '"');
            return {};
        }
        while (position_ < text_.size()) Line();
        if (keys_.empty() && faults_.empty()) Fault(line_, "names no key");
        return faults_.empty() ? Gather() : StoredSettings{};
    }

  private:
    wchar_t Next() const { return position_ < text_.size() ? text_[position_] : L'\0'; }
    wchar_t Take() {
        const wchar_t c = Next();
        const bool divided =
            c == L'\r' && position_ + 1 < text_.size() && text_[position_ + 1] == L'\n';
        if (IsLineBreak(c) && !divided) ++line_;
        ++position_;
        return c;
    }
    void SkipBlanks() {
        while (Next() == L' ' || Next() == L'\t') Take();
    }
    // The rest of the line, without blanks at its end.
    std::wstring_view TakeLine() {
        const std::size_t begin = position_;
        while (position_ < text_.size() && !IsLineBreak(Next())) Take();
        std::wstring_view line = text_.substr(begin, position_ - begin);
        while (line.ends_with(L' ') || line.ends_with(L'\t')) line.remove_suffix(1);
        if (Next() == L'\r') Take();
        if (Next() == L'\n') Take();
        return line;
    }
    // The same with the lines that a backslash at the end joins to it.
    std::wstring TakeJoinedLine() {
        std::wstring joined(TakeLine());
        while (joined.ends_with(L'\\') && position_ < text_.size()) {
            joined.pop_back();
            SkipBlanks();
            joined += TakeLine();
        }
        return joined;
    }
    void Fault(std::size_t line, std::string text) { faults_.push_back({line, std::move(text)}); }

    void Line() {
        SkipBlanks();
        const std::size_t line = line_;
        switch (Next()) {
            case L'[': return Key(TakeLine(), line);
            case L'"':
            case L'@': return Value(line);
            case L';': TakeLine(); return;
            default:
                if (!TakeLine().empty()) Fault(line, "neither a key nor a value");
        }
    }

    void Key(std::wstring_view text, std::size_t line) {
        keyIsGood_ = false;
        if (!text.ends_with(L']')) return Fault(line, "a key's name ends with ]");
        std::wstring name = TidyPath(text.substr(1, text.size() - 2));
        if (name.starts_with(L'-')) return Fault(line, "a settings file cannot delete keys");
        if (!under_.empty()) {
            const std::wstring above = name.substr(0, under_.size());
            if (name.size() <= under_.size() || !IsSameAsciiName(above, under_) ||
                name[under_.size()] != L'\\') {
                return Fault(line, "not below " + ToUtf8(under_));
            }
            name.erase(0, under_.size() + 1);
        }
        std::wstring_view rest = name;
        const std::uint32_t root = RootOfName(TakeKeyName(rest));
        if (!root) return Fault(line, "does not begin with the name of a root key");
        if (!keys_.empty() && root != root_) return Fault(line, "a settings file has one root key");
        if (DepthOf(rest) > kDeepestKey) return Fault(line, "deeper than a registry nests keys");
        root_ = root;
        keyIsGood_ = true;
        keys_.push_back({TidyPath(rest), {}});
    }

    void Value(std::size_t line) {
        StoredValue value{{}, SettingsType::kText, {}, 0, {}};
        if (Take() == L'"' && !Text(value.name)) return Fault(line, "a name without an end");
        SkipBlanks();
        if (Next() != L'=') {
            TakeLine();
            return Fault(line, "a name without =");
        }
        Take();
        SkipBlanks();
        const std::string fault = Data(value);
        if (!fault.empty()) return Fault(line, fault);
        if (keyIsGood_) {
            keys_.back().values.push_back(std::move(value));
        } else if (keys_.empty() && faults_.empty()) {
            Fault(line, "stands before the first key");
        }
    }

    // Up to the quote that ends it.
    bool Text(std::wstring& text) {
        while (position_ < text_.size()) {
            const wchar_t c = Take();
            if (c == L'"') return true;
            if (c == L'\\' && position_ >= text_.size()) return false;
            text += c == L'\\' ? Take() : c;
        }
        return false;
    }

    // What is wrong with it; empty for nothing.
    std::string Data(StoredValue& value) {
        if (Next() == L'"') {
            Take();
            if (!Text(value.text)) return "a text without an end";
            return TakeLine().empty() ? "" : "something stands behind the text";
        }
        const std::wstring line = TakeJoinedLine();
        const std::size_t colon = std::min(line.find(L':'), line.size());
        const std::wstring kind = line.substr(0, colon);
        const std::wstring data = line.substr(std::min(colon + 1, line.size()));
        if (kind == L"-") return "a settings file cannot delete values";
        if (kind == L"dword") {
            value.type = SettingsType::kNumber;
            return Number(data, 8, value.number) ? "" : "dword: wants up to eight digits";
        }
        std::vector<std::uint8_t> bytes;
        if (!kind.starts_with(L"hex")) return "neither a text nor dword: nor hex:";
        if (!Bytes(data, bytes)) return "hex: wants bytes of two digits, with commas between";
        if (kind == L"hex" || kind == L"hex(3)") {
            value.type = SettingsType::kBinary;
            value.bytes = std::move(bytes);
        } else if (kind == L"hex(1)" && bytes.size() % 2 == 0) {
            value.text = ByteReader(bytes).TakeText(bytes.size());
            if (value.text.ends_with(L'\0')) value.text.pop_back();
        } else if (kind == L"hex(4)" && bytes.size() == 4) {
            value.type = SettingsType::kNumber;
            value.number = ByteReader(bytes).TakeNumber();
        } else {
            return "a settings file cannot hold this type";
        }
        return "";
    }

    static bool Number(std::wstring_view digits, std::size_t longest, std::uint32_t& number) {
        if (digits.empty() || digits.size() > longest) return false;
        number = 0;
        for (const wchar_t c : digits) {
            const bool isDigit = c >= L'0' && c <= L'9';
            const bool isLetter = (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
            if (!isDigit && !isLetter) return false;
            number = number << 4 | static_cast<std::uint32_t>(isDigit ? c - L'0' : (c & 0xF) + 9);
        }
        return true;
    }

    static bool Bytes(std::wstring_view text, std::vector<std::uint8_t>& bytes) {
        while (!text.empty()) {
            const std::size_t comma = std::min(text.find(L','), text.size());
            std::uint32_t number = 0;
            if (!Number(text.substr(0, comma), 2, number)) return false;
            bytes.push_back(static_cast<std::uint8_t>(number));
            if (comma + 1 == text.size()) return false;
            text.remove_prefix(std::min(comma + 1, text.size()));
        }
        return true;
    }

    // All keys below the one above them all.
    StoredSettings Gather() const {
        std::vector<std::wstring> common;
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            std::wstring_view rest = keys_[i].path;
            std::size_t count = 0;
            for (auto name = TakeKeyName(rest); !name.empty(); name = TakeKeyName(rest), ++count) {
                if (i == 0) common.emplace_back(name);
                if (count >= common.size() || !IsSameAsciiName(common[count], name)) break;
            }
            common.resize(count);
        }
        StoredSettings settings;
        settings.root = root_;
        settings.whole = true;
        for (const std::wstring& name : common) settings.path += L'\\' + name;
        settings.path = TidyPath(settings.path);
        settings.Key({});
        for (const NamedKey& key : keys_) {
            StoredKey& stored =
                settings.Key(std::wstring_view(key.path).substr(settings.path.size()));
            for (const StoredValue& value : key.values) Put(stored, value);
        }
        return settings;
    }

    std::wstring_view text_;
    std::wstring under_;
    std::vector<RegFault>& faults_;
    std::size_t position_ = 0, line_ = 1;
    std::uint32_t root_ = 0;
    std::vector<NamedKey> keys_;
    bool keyIsGood_ = false;  // of the values that come
};

}  // namespace

std::optional<std::wstring> FormatReg(const StoredSettings& settings, std::wstring_view under) {
    if (RootName(settings.root).empty()) return {};
    std::wstring text(kHeader);
    text += L"\r\n";
    for (const StoredKey& key : settings.keys) {
        const std::wstring path = TidyPath(std::wstring(under) + L'\\' + FullPath(settings, key));
        if (std::any_of(path.begin(), path.end(), IsLineBreak)) return {};
        text += L"\r\n[" + path + L"]\r\n";
        for (const StoredValue& value : key.values) {
            text += value.name.empty() ? L"@" : InQuotes(value.name);
            text += L'=' + DataOf(value) + L"\r\n";
        }
    }
    return text;
}

StoredSettings ParseReg(std::wstring_view text, std::wstring_view under,
                        std::vector<RegFault>& faults) {
    return Parser(text, under, faults).Run();
}
