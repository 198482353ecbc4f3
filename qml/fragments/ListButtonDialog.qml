import QtQuick 2.7
import QtQuick.Window 2.7

import "../controls"

// A list over everything else, for one choice or none. It lasts until the first click.
Item {
    id: dialog

    property alias model: list.model
    // For a screen reader.
    property string title
    property int size: 1
    property var current: "."
    // Where the keyboard was, to return there.
    property Item itemBefore

    // The value of the entry that was chosen.
    signal selected(var index)

    // On purpose: the animation, which has no target, is begun and completed at once, so the list vanishes at once.
    function end() {
        if (itemBefore)
            itemBefore.forceActiveFocus()
        disappear.start()
        disappear.complete()
        dialog.destroy()
    }

    // Takes the keyboard; one who uses it begins at the current entry.
    function begin() {
        itemBefore = Window.activeFocusItem
        forceActiveFocus()
        for (var i = 0; i < model.count; ++i)
            if (model.get(i).value === current)
                list.currentIndex = i
        if (lastGesture.isKeyboard)
            list.currentItem.forceActiveFocus()
    }

    function move(step) {
        if (list.currentItem.activeFocus)
            list.currentIndex = (list.currentIndex + step + list.count) % list.count
        list.currentItem.forceActiveFocus()
    }

    anchors.fill: parent
    // The keyboard does not leave the dialog.
    Keys.onTabPressed: move(1)
    Keys.onBacktabPressed: move(-1)
    Keys.onDownPressed: move(1)
    Keys.onUpPressed: move(-1)
    Keys.onEscapePressed: end()
    Accessible.role: Accessible.Dialog
    Accessible.name: title

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
        onWheel: function (wheel) { wheel.accepted = true }
    }

    ListView {
        id: list

        z: 3
        anchors.centerIn: parent
        width: themeData.buttonSizeMedium
        height: dialog.size * themeData.iconSizeMedium
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false

        delegate: Button {
            width: list.width
            height: themeData.iconSizeMedium
            text: name
            activeFocusOnTab: false
            Accessible.checkable: true
            Accessible.checked: dialog.current === value
            textColor: themeData.darkTextColor
            color: dialog.current === value ? themeData.currentEntryColor : themeData.lightTextColor
            onClicked: {
                dialog.selected(value)
                dialog.end()
            }
        }
    }
}
