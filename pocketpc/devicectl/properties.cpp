#include "pocketpc/devicectl/properties.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace {

struct Type {
    const wchar_t* name;
    WORD type;
};
constexpr Type kTypes[] = {
    {L"i2", CEVT_I2},         {L"ui2", CEVT_UI2},       {L"i4", CEVT_I4},
    {L"ui4", CEVT_UI4},       {L"r8", CEVT_R8},         {L"bool", CEVT_BOOL},
    {L"string", CEVT_LPWSTR}, {L"time", CEVT_FILETIME}, {L"blob", CEVT_BLOB},
    {L"recid", CEVT_RECID},
};

// A whole number, decimal or hexadecimal behind "0x".
std::optional<long long> ParseNumber(const std::wstring& text) {
    wchar_t* end = nullptr;
    const long long number = wcstoll(text.c_str(), &end, 0);
    return text.empty() || *end ? std::nullopt : std::optional(number);
}

bool IsHexDigit(wchar_t c) { return c < 0x80 && iswxdigit(c); }

}  // namespace

std::optional<CEPROPID> ParseProperty(std::wstring_view text) {
    const std::size_t colon = text.find(L':');
    if (colon == std::wstring_view::npos) return std::nullopt;
    const auto number = ParseNumber(std::wstring(text.substr(0, colon)));
    const auto type = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const Type& known) {
        return text.substr(colon + 1) == known.name;
    });
    if (!number || *number < 0 || *number > 0xFFFF || type == std::end(kTypes)) return std::nullopt;
    return static_cast<CEPROPID>(*number) << 16 | type->type;
}

std::wstring PropertyText(CEPROPID property) {
    // Large numbers are bit patterns to those who chose them.
    wchar_t number[16];
    swprintf(number, std::size(number), HIWORD(property) < 0x1000 ? L"%u:" : L"0x%x:",
             unsigned{HIWORD(property)});
    for (const Type& type : kTypes) {
        if (type.type == TypeFromPropID(property)) return std::wstring(number) + type.name;
    }
    return number + std::to_wstring(TypeFromPropID(property));
}

std::optional<std::vector<BYTE>> ParseBytes(std::wstring_view digits) {
    if (digits.size() % 2 || !std::all_of(digits.begin(), digits.end(), IsHexDigit)) {
        return std::nullopt;
    }
    std::vector<BYTE> bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(
            static_cast<BYTE>(wcstoul(std::wstring(digits.substr(i, 2)).c_str(), nullptr, 16)));
    }
    return bytes;
}

bool PropertyValues::Add(std::wstring_view text) {
    const std::size_t equals = text.find(L'=');
    const auto property = ParseProperty(text.substr(0, equals));
    if (!property) return false;
    CEPROPVAL value = {};
    value.propid = *property;
    const WORD type = TypeFromPropID(*property);
    if (equals == std::wstring_view::npos) {
        if (type != CEVT_RECID) value.wFlags = CEDB_PROPDELETE;
        values_.push_back(value);
        return true;
    }
    const std::wstring& data = texts_.emplace_back(text.substr(equals + 1));
    if (type == CEVT_LPWSTR) {
        value.val.lpwstr = const_cast<LPWSTR>(data.c_str());
    } else if (type == CEVT_BLOB) {
        const auto bytes = ParseBytes(data);
        if (!bytes) return false;
        std::vector<BYTE>& blob = blobs_.emplace_back(*bytes);
        value.val.blob = {static_cast<DWORD>(blob.size()), blob.data()};
    } else if (type == CEVT_R8) {
        wchar_t* end = nullptr;
        value.val.dblVal = wcstod(data.c_str(), &end);
        if (data.empty() || *end) return false;
    } else {
        const auto number = ParseNumber(data);
        if (!number) return false;
        switch (type) {
            case CEVT_I2:
            case CEVT_UI2: value.val.uiVal = static_cast<USHORT>(*number); break;
            case CEVT_FILETIME:
                value.val.filetime = {static_cast<DWORD>(*number),
                                      static_cast<DWORD>(*number >> 32)};
                break;
            default: value.val.ulVal = static_cast<ULONG>(*number);
        }
    }
    values_.push_back(value);
    return true;
}

std::wstring ValueText(const CEPROPVAL& value) {
    const std::wstring start = PropertyText(value.propid) + L"=";
    wchar_t text[64] = {};
    switch (TypeFromPropID(value.propid)) {
        case CEVT_I2: return start + std::to_wstring(value.val.iVal);
        case CEVT_UI2: return start + std::to_wstring(value.val.uiVal);
        case CEVT_I4: return start + std::to_wstring(value.val.lVal);
        case CEVT_BOOL: return start + (value.val.boolVal ? L"1" : L"0");
        case CEVT_LPWSTR: return start + value.val.lpwstr;
        case CEVT_R8: swprintf(text, std::size(text), L"%.17g", value.val.dblVal); break;
        case CEVT_FILETIME:
            swprintf(text, std::size(text), L"0x%08lx%08lx", value.val.filetime.dwHighDateTime,
                     value.val.filetime.dwLowDateTime);
            break;
        case CEVT_RECID:
            if (!value.val.blob.lpb) return start + std::to_wstring(value.val.ulVal);
            [[fallthrough]];
        case CEVT_BLOB: {
            std::wstring digits;
            for (DWORD i = 0; i < value.val.blob.dwCount; ++i) {
                swprintf(text, std::size(text), L"%02x", value.val.blob.lpb[i]);
                digits += text;
            }
            return start + digits;
        }
        default: return start + std::to_wstring(value.val.ulVal);
    }
    return start + text;
}
