// The integer and float value of a text against the C library's reading of the same text.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz/Expect.h"
#include "store/TextValue.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    // The C functions read up to the first NUL, where a text's value stops too (not a digit).
    const std::string c(text.substr(0, text.find('\0')));

    const long long wide = std::strtoll(c.c_str(), nullptr, 10);  // saturates, as it must
    expect(integerValue(text) == wide, "integerValue", c);
    const long long narrow = wide < INT32_MIN ? INT32_MIN : wide > INT32_MAX ? INT32_MAX : wide;
    expect(intValue(text) == narrow, "intValue", c);

    // strtof also reads hexadecimal, "inf" and "nan", which a text's value does not: cut at the
    // first letter that can start one of those, after which strtof sees no decimal number either.
    const float expected = std::strtof(c.substr(0, c.find_first_of("xXiInN")).c_str(), nullptr);
    const float got = floatValue(text);
    expect(std::memcmp(&got, &expected, sizeof got) == 0, "floatValue", c);
    return 0;
}
