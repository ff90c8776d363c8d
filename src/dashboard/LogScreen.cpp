#include "dashboard/LogScreen.h"

LogScreen::LogScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {
    setTitle("Log");
}
