import QtQuick

FoodScreen { pad: true }
