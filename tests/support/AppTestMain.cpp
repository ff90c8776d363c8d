// App and screen tests: a real QGuiApplication drawing offscreen, with the locale and time zone
// pinned as in the core tests.
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickStyle>
#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("en_US"), status);
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone("UTC"));
    QGuiApplication::setApplicationName("calorie-counter-tests");
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle("Basic");
    QAccessible::setActive(true);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
