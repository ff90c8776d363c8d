#include "food/SearchFoodScreen.h"

SearchFoodScreen::SearchFoodScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {
    setTitle("Search Food");
}
