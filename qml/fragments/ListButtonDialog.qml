import QtQuick 2.0

import "../controls"

// A list over everything else, for one choice or none. It lasts until the first click.
Item {
    id: dialog

    property alias model: list.model
    property int size: 1
    property var current: "."

    // The value of the entry that was chosen.
    signal selected(var index)

    // On purpose: the animation, which has no target, is begun and completed at once, so the list vanishes at once.
    function end() {
        disappear.start()
        disappear.complete()
        dialog.destroy()
    }

    anchors.fill: parent

    NumberAnimation {
        id: disappear

        duration: 200
        easing.type: Easing.InQuad
        from: 1
        to: 0
    }

    Rectangle {
        z: 1
        anchors.fill: parent
        color: themeData.darkTextColor
        opacity: 0.4
    }

    MouseArea {
        z: 2
        anchors.fill: parent
        onClicked: dialog.end()
        onWheel: wheel.accepted = true
    }

    ListView {
        id: list

        z: 3
        anchors.centerIn: parent
        width: themeData.buttonSizeMedium
        height: dialog.size * themeData.iconSizeMedium
        boundsBehavior: Flickable.StopAtBounds

        delegate: Button {
            width: list.width
            height: themeData.iconSizeMedium
            text: name
            textColor: themeData.darkTextColor
            color: dialog.current === value ? themeData.currentEntryColor : themeData.lightTextColor
            onClicked: {
                dialog.selected(value)
                dialog.end()
            }
        }
    }
}
