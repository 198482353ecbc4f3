import QtQuick 2.7

// Lies over a control that the keyboard can reach. It shows the focus while the keyboard is used. It emits `pressed`
// when Space, Enter or a screen reader presses the control. The control forwards its keys here.
Item {
    id: ring

    // For a screen reader, which does not learn in another way that a control is disabled.
    readonly property string availability: enabled ? "" : qsTr("Not available")

    // In pixels. It is thin on a low control, so that it leaves the label free.
    readonly property int thickness: Math.max(2, Math.min(4, height * 0.1))

    signal pressed

    function press() {
        if (enabled)
            pressed()
    }

    anchors.fill: parent
    Keys.onPressed: function (event) {
        if (event.key !== Qt.Key_Space && event.key !== Qt.Key_Return && event.key !== Qt.Key_Enter)
            return
        event.accepted = true
        if (!event.isAutoRepeat)
            press()
    }

    // A light frame inside a dark one is visible on every colour.
    Rectangle {
        anchors.fill: parent
        visible: ring.parent.activeFocus && lastGesture.isKeyboard
        color: "transparent"
        border.color: themeData.darkTextColor
        border.width: ring.thickness

        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            color: "transparent"
            border.color: themeData.lightTextColor
            border.width: ring.thickness / 2
        }
    }
}
