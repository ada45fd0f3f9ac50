// Any text is a command line; the sheets it names, written as options, are the same sheets.
#include "app/command_line.h"

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kShortestOption = 5;  // -P0:0
    const std::wstring text = TextOf({data, size});
    const std::vector<OpenRequest> requests = ParseCommandLine(text);
    REQUIRE(requests.size() <= text.size() / kShortestOption);

    std::wstring written;
    for (const OpenRequest& request : requests) {
        written += L" -P" + std::to_wstring(request.entry) + L":" + std::to_wstring(request.page);
    }
    REQUIRE(ParseCommandLine(written) == requests);
    return 0;
}
