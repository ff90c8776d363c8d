// The start date's text through the day index, against the days counted from the same text read
// field by field. The first byte picks the device's locale and time zone; the rest is the text.
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "fuzz/Expect.h"
#include "store/AppState.h"
#include "store/DayIndex.h"

namespace {

// Locales whose calendar or digits are not Gregorian and Latin, and one that is.
constexpr std::array kLocales = {"en_US",
                                 "th_TH",
                                 "fa_IR",
                                 "ar_SA",
                                 "ps_AF",
                                 "uz_Arab",
                                 "my_MM",
                                 "ja_JP@calendar=japanese",
                                 "zh_TW@calendar=roc",
                                 "hi_IN@numbers=deva"};
// Zones without clock changes or history, so that a local day is always 86,400 seconds.
constexpr std::array kZones = {"UTC", "Etc/GMT-14", "Etc/GMT+12", "Etc/GMT-5"};

constexpr int64_t kNow = 1795176000;  // 2026-11-20 12:00:00 UTC
constexpr int64_t kUntouched = -7;

// Days from 1970-01-01 to a proleptic Gregorian date.
int64_t daysFromCivil(int64_t y, int64_t m, int64_t d) {
    y -= m <= 2;
    const int64_t era = (y >= 0 ? y : y - 399) / 400;
    const int64_t yoe = y - era * 400;
    const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

int daysInMonth(int y, int m) {
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    return m == 2 && leap ? 29 : days[m - 1];
}

// The number in text[from, from + count), or -1 unless those are all ASCII digits.
int number(const std::string& text, size_t from, size_t count) {
    int value = 0;
    for (size_t i = from; i < from + count; ++i) {
        if (text[i] < '0' || text[i] > '9') return -1;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

// Seconds since the epoch of a text exactly in the form set-up writes, with valid fields:
// "2026-11-15 09:30:00 +0000".
std::optional<int64_t> strictSeconds(const std::string& text) {
    if (text.size() != 25 || text.compare(4, 1, "-") || text.compare(7, 1, "-") ||
        text.compare(10, 1, " ") || text.compare(13, 1, ":") || text.compare(16, 1, ":") ||
        text.compare(19, 1, " ") || (text[20] != '+' && text[20] != '-'))
        return std::nullopt;
    const int y = number(text, 0, 4), mo = number(text, 5, 2), d = number(text, 8, 2);
    const int h = number(text, 11, 2), mi = number(text, 14, 2), s = number(text, 17, 2);
    const int oh = number(text, 21, 2), om = number(text, 23, 2);
    if (y < 1 || mo < 1 || mo > 12 || d < 1 || d > daysInMonth(y, mo) || h < 0 || h > 23 ||
        mi < 0 || mi > 59 || s < 0 || s > 59 || oh < 0 || oh > 23 || om < 0 || om > 59)
        return std::nullopt;
    const int64_t offset = (text[20] == '-' ? -1 : 1) * (oh * 3600 + om * 60);
    return daysFromCivil(y, mo, d) * 86400 + h * 3600 + mi * 60 + s - offset;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const unsigned pick = data[0];
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(kLocales[pick % kLocales.size()]), status);
    icu::TimeZone::adoptDefault(
        icu::TimeZone::createTimeZone(kZones[pick / kLocales.size() % kZones.size()]));
    const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);

    AppState state;
    state.profileRows = {{"1850", text}};
    state.todayIndex = state.dayIndex = kUntouched;
    computeDayIndex(state, Instant(std::chrono::seconds(kNow)));

    expect(state.todayIndex == state.dayIndex, "both indexes move together", text);
    expect(state.todayIndex == kUntouched || state.todayIndex >= 0, "a start before now", text);
    if (const auto start = strictSeconds(text)) {
        // What Instant can count (nanoseconds in 64 bits): about 1677-09-21 to 2262-04-11.
        const bool countable = *start >= -9223372036 && *start <= 9223372036;
        const int64_t expected = countable && *start < kNow ? (kNow - *start) / 86400 : kUntouched;
        expect(state.todayIndex == expected, "elapsed days",
               text + " gave " + std::to_string(state.todayIndex));
    }
    return 0;
}
