import QtQuick

ExerciseScreen { pad: true }
