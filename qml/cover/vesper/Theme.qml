pragma Singleton
import QtQuick 2.0

// Stands in for the platform's theme.
QtObject {
    readonly property color primaryColor: "white"
    readonly property int paddingSmall: 6
}
