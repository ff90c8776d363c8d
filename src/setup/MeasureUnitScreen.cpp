#include "setup/MeasureUnitScreen.h"

MeasureUnitScreen::MeasureUnitScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {}
