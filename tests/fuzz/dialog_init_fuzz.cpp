// Any bytes are a dialog-initialisation resource; cutting it off loses records at its end alone.
// Any bytes are a dialog template or none; each of its controls takes its place in them.
#include "app/language/dialog_init.h"

#include <algorithm>

#include "base/dialog_template.h"
#include "tests/fuzz/fuzz.h"

namespace {

void ReadTemplate(std::span<const std::uint8_t> bytes) {
    const std::optional<DialogTemplate> dialog = ParseDialogTemplate(bytes);
    if (!dialog) return;
    constexpr std::size_t kSmallestDialog = 32, kSmallestControl = 30, kNumber = 5;
    std::size_t taken = kSmallestDialog;
    for (const DialogTemplate::Control& control : dialog->controls) {
        taken += kSmallestControl;
        for (const std::wstring& name : {control.className, control.text}) {
            REQUIRE(name.find(L'\0') == name.npos);
            // A number takes two units.
            taken += 2 * (name.size() == kNumber && name[0] == L'#' ? 1 : name.size());
        }
    }
    REQUIRE(taken <= bytes.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ReadTemplate({data, size});
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
