// Short texts that the registry, the disk, translations and command lines hold: any text is as good
// as another to each of their readers.
#include <algorithm>

#include "app/command_line.h"
#include "appearance/categories/file_name_escape.h"
#include "appearance/categories/icon_sources.h"
#include "appearance/categories/short_path.h"
#include "appearance/skins/skin_list.h"
#include "base/fill_in.h"
#include "pages/stores/mail_filter_names.h"
#include "settings/date_picture.h"
#include "settings/hidden_names.h"
#include "settings/settings_file_facts.h"
#include "settings/tab_layout.h"
#include "settings/title_fields.h"
#include "tests/fuzz/fuzz.h"

namespace {

void ReadNames(const std::wstring& text, std::size_t room) {
    REQUIRE(JoinHiddenNames(SplitHiddenNames(text)) == text);
    REQUIRE(UnescapeFileName(EscapeFileName(text)) == text);
    REQUIRE(EscapeFileName(text).find_first_of(L"\\/:*?\"<>|") == text.npos);
    REQUIRE(UnescapeFileName(text).size() <= text.size());
    const auto skin = OfferedSkinName(text, false);
    REQUIRE(!skin || (text.starts_with(*skin + L".") && skin->find(L'.') == text.npos));
    const auto fits = [room](const std::wstring& shown) { return shown.size() <= room; };
    const std::wstring path = ShortenPath(text, fits);
    REQUIRE(fits(path) || path == L"...");

    const RememberedFolders folders({{text, L"one"}, {L"1", text}, {text, text}, {L"2", L"two"}});
    REQUIRE(folders.folders().size() <= 3 && std::ranges::count(folders.folders(), L"two") == 1);
    REQUIRE(std::ranges::count(folders.folders(), text) <= 1);
    const std::wstring filter = L"Filter" + text;
    REQUIRE(AutomaticFilterName({L"", L"Filter"}, 2, L"", {filter}) != filter);

    std::wstring_view rest = text;
    for (std::wstring_view key = TakeKeyName(rest); !key.empty(); key = TakeKeyName(rest)) {
        REQUIRE(key.find(L'\\') == key.npos && key.size() + rest.size() <= text.size());
    }
    REQUIRE(PlaceOfKey(kLocalMachine, text + L"\\x\\y") != KeyPlace::kInside ||
            PlaceOfKey(kLocalMachine, text) != KeyPlace::kOutside);
}

void ReadPatterns(const std::wstring& text, std::uint32_t bits) {
    const TabLayout tabs = TabLayout::Parse(bits, text);
    REQUIRE(TabLayout::Parse(tabs.shown, tabs.Sequence()).order == tabs.order);
    std::wstring sequence = tabs.Sequence();
    std::ranges::sort(sequence);
    REQUIRE(sequence == L"123456" && SmallestHeight(tabs.shown, bits & 1) >= 60);

    DisplayPattern pattern{L"before", 7, L"after"}, again;
    pattern.Parse(text);
    const bool hasMode = text.find_first_of(L"0123456789") != text.npos;
    REQUIRE(hasMode ? text.ends_with(pattern.Format())  // the normal form of its end
                    : pattern == (DisplayPattern{L"", 7, text}));
    again.Parse(pattern.Format());
    REQUIRE(again == pattern);
    const DisplayPattern ordered = TitleRows(pattern).Pattern(pattern.mode);
    REQUIRE(TitleRows(ordered).Pattern(pattern.mode) == ordered);

    const DatePictureFlags flags = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, true};
    const std::wstring picture = BuildDatePicture(text, flags);
    REQUIRE(picture.size() <= text.size() + 1 && picture.find(L"dddd") == text.npos);

    const std::wstring filled = FillIn(text, {L"name", 3});
    REQUIRE(PlaceholdersOf(text) == L"sd" ? filled.find(L'3') != text.npos : filled == text);
}

// The sheets a command line names, written as options, are the same sheets.
void ReadCommandLine(const std::wstring& text) {
    const std::vector<OpenRequest> requests = ParseCommandLine(text);
    std::wstring written;
    for (const OpenRequest& request : requests) {
        written += L" -P" + std::to_wstring(request.entry) + L":" + std::to_wstring(request.page);
    }
    REQUIRE(ParseCommandLine(written) == requests);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::wstring text = TextOf({data + 1, size - 1});
    ReadNames(text, data[0] / 4);
    ReadPatterns(text, data[0]);
    ReadCommandLine(text);
    return 0;
}
