pragma Singleton
import QtQuick 2.0

// Stand-in for the theme of the mobile platform.
QtObject {
    readonly property color primaryColor: "white"
    readonly property int paddingSmall: 6
}
