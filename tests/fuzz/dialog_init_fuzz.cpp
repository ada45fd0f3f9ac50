// Any bytes are a dialog-initialisation resource; cutting it off loses records at its end alone.
#include "app/language/dialog_init.h"

#include <algorithm>

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kSmallestRecord = 8;
    const std::vector<DialogInitRecord> records = ParseDialogInit({data, size});
    REQUIRE(records.size() <= size / kSmallestRecord);
    std::size_t length = 0;
    for (const DialogInitRecord& record : records) {
        REQUIRE(record.controlId != 0);
        REQUIRE(record.target != DialogInitRecord::Target::kNone || record.text.empty());
        REQUIRE(record.text.find(L'\0') == std::wstring::npos);
        length += kSmallestRecord + 2 * record.text.size();
    }
    REQUIRE(length <= size);

    // Copies of their own size, so that a read past the end is seen.
    for (const std::size_t cutSize : {size / 2, size - std::min<std::size_t>(size, 1)}) {
        const std::vector<std::uint8_t> cut(data, data + cutSize);
        const std::vector<DialogInitRecord> first = ParseDialogInit(cut);
        REQUIRE(first.size() <= records.size());
        REQUIRE(std::equal(first.begin(), first.end(), records.begin()));
    }
    return 0;
}
