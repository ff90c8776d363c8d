import QtQuick

Rectangle {
    color: "white"
}
