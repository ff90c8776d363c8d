// Every test runs in a pinned locale and time zone, whatever the machine says.
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

int main(int argc, char** argv) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("en_US"), status);
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone("UTC"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
