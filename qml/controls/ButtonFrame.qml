import QtQuick 2.7

// The base of all buttons: a frame around the content, a shade while the button is pressed, and the click.
Pressable {
    id: button

    default property alias content: frame.data
    property alias color: frame.color
    property alias pressed: mouseArea.pressed
    readonly property color currentTextColor: enabled ? themeData.lightTextColor : themeData.disabledTextColor
    readonly property real radius: frame.radius
    readonly property real border: frame.border.width
    readonly property real iconSize: Math.max(0, height - 2 * border - radius)
    readonly property real iconOpacity: enabled ? 1 : 0.5

    signal clicked

    onActivated: clicked()

    Rectangle {
        id: frame

        anchors.fill: parent
        color: themeData.backgroundColor
        radius: Math.min(height, width) * 0.2
        border.color: button.enabled ? themeData.strokeColor : themeData.disabledTextColor
        border.width: themeData.fontSizeTiny * 0.2
        clip: true
    }

    Rectangle {
        anchors.fill: parent
        radius: frame.radius
        color: themeData.pressedShadeColor
        opacity: 0.2
        visible: mouseArea.pressed
    }

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        onClicked: button.clicked()
    }
}
