#include "dashboard/TodayScreen.h"

TodayScreen::TodayScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {
    setTitle("Today");
}
