// Any bytes are the records of a filter or are none. Those of a filter are written as they were,
// but for what is there twice.
#include "pages/stores/mail_filter.h"

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto entries = ParseMailFilter({data, size});
    if (!entries) return 0;
    const auto bytes = MailFilterBytes(*entries);
    REQUIRE(bytes && bytes->size() <= size);
    REQUIRE(bytes->size() < size || std::equal(bytes->begin(), bytes->end(), data));
    REQUIRE(ParseMailFilter(*bytes) == entries);
    return 0;
}
