// The start date's text through the day index, against the days counted from the same text read
// field by field. The first byte picks the device's locale and time zone; the rest is the text.
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "fuzz/Expect.h"
#include "store/AppState.h"
#include "store/DayIndex.h"

namespace {

// Locales whose calendar or digits are not Gregorian and Latin, and one that is.
constexpr std::array kLocales = {"en_US", "th_TH", "fa_IR", "ar_SA", "ps_AF", "uz_Arab", "my_MM",
                                 "ja_JP@calendar=japanese", "zh_TW@calendar=roc",
                                 "hi_IN@numbers=deva"};
// Zones without clock changes or history, so that a local day is always 86,400 seconds.
constexpr std::array kZones = {"UTC", "Etc/GMT-14", "Etc/GMT+12", "Etc/GMT-5"};

constexpr int64_t kNow = 1795176000;  // 2026-11-20 12:00:00 UTC
constexpr int64_t kUntouched = -7;

// Seconds since the epoch of a text exactly in the form set-up writes, with valid fields:
// "2026-11-15 09:30:00 +0000". In the form, 0 stands for any ASCII digit and + for either sign.
std::optional<int64_t> strictSeconds(const std::string& text) {
    constexpr std::string_view form = "0000-00-00 00:00:00 +0000";
    if (text.size() != form.size()) return std::nullopt;
    for (size_t i = 0; i < form.size(); ++i) {
        const bool fits = form[i] == '0'   ? text[i] >= '0' && text[i] <= '9'
                          : form[i] == '+' ? text[i] == '+' || text[i] == '-'
                                           : text[i] == form[i];
        if (!fits) return std::nullopt;
    }
    const auto field = [&](size_t from, size_t count) { return std::stoi(text.substr(from, count)); };
    using namespace std::chrono;
    const int y = field(0, 4), h = field(11, 2), mi = field(14, 2), s = field(17, 2);
    const int oh = field(21, 2), om = field(23, 2);
    const year_month_day date{year{y}, month(field(5, 2)), day(field(8, 2))};
    if (y < 1 || !date.ok() || h > 23 || mi > 59 || s > 59 || oh > 23 || om > 59)
        return std::nullopt;
    const int64_t offset = (text[20] == '-' ? -1 : 1) * (oh * 3600 + om * 60);
    return sys_seconds(sys_days(date)).time_since_epoch().count() + h * 3600 + mi * 60 + s - offset;
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
