import QtQuick

EnterWtScreen { pad: true }
