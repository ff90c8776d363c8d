import QtQuick

BrowseExerciseScreen { pad: true }
