import QtQuick

HeightScreen { pad: true }
