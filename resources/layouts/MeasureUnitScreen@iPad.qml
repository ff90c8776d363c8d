import QtQuick

MeasureUnitScreen { pad: true }
