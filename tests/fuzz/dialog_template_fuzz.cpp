// Any bytes are a dialog template or none; each of its controls takes its place in them.
#include "base/dialog_template.h"

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::optional<DialogTemplate> dialog = ParseDialogTemplate({data, size});
    if (!dialog) return 0;
    constexpr std::size_t kSmallestDialog = 32, kSmallestControl = 30, kNumber = 5;
    std::size_t taken = kSmallestDialog;
    for (const DialogTemplate::Control& control : dialog->controls) {
        taken += kSmallestControl;
        for (const std::wstring& name : {control.className, control.text}) {
            // A number takes two units.
            REQUIRE(name.find(L'\0') == name.npos);
            taken += 2 * (name.size() == kNumber && name[0] == L'#' ? 1 : name.size());
        }
    }
    REQUIRE(taken <= size);
    return 0;
}
