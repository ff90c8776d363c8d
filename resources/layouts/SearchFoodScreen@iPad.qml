import QtQuick
import "qrc:/ui"

KitScreen {
}
