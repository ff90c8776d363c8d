import QtQuick

CustomEntryScreen { pad: true }
