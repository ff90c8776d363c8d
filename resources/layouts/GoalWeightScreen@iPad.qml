import QtQuick

GoalWeightScreen { pad: true }
