#include "pocketpc/common/text.h"

#include <windows.h>

#include <utility>

std::vector<std::wstring> SplitWords(std::wstring_view line) {
    std::vector<std::wstring> words;
    std::wstring word;
    bool quoted = false, started = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == L'"') {
            if (quoted && i + 1 < line.size() && line[i + 1] == L'"') {
                word += line[++i];
            } else {
                quoted = !quoted;
                started = true;
            }
        } else if (!quoted && (line[i] == L' ' || line[i] == L'\t')) {
            if (started) words.push_back(std::exchange(word, {}));
            started = false;
        } else {
            word += line[i];
            started = true;
        }
    }
    if (started || words.empty()) words.push_back(word);
    return words;
}

std::string Utf8Of(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(text.empty() ? 0
                              : WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                                    length * 3, nullptr, nullptr));
    return bytes;
}

std::wstring TextOfUtf8(std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(bytes.empty()
                    ? 0
                    : MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, text.data(), length));
    return text;
}

std::wstring SystemProblem() {
    const DWORD error = GetLastError();
    wchar_t text[256] = {};
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                       MAKELANGID(LANG_ENGLISH, SUBLANG_DEFAULT), text, 256, nullptr);
    std::wstring problem = L"error " + std::to_wstring(error) + L" " + std::wstring(text, length);
    while (!problem.empty() && problem.back() <= L' ') problem.pop_back();
    return problem;
}
