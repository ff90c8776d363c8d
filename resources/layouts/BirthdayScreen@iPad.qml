import QtQuick

BirthdayScreen { pad: true }
