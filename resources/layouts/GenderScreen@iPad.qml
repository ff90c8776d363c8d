import QtQuick

GenderScreen { pad: true }
