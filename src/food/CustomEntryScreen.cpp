#include "food/CustomEntryScreen.h"

CustomEntryScreen::CustomEntryScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {}
