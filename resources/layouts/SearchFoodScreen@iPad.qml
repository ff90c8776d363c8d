import QtQuick

SearchFoodScreen { pad: true }
