import QtQuick 2.7
import QtQuick.Window 2.7

import "../controls"

// A list over everything else, for one choice or none. The first click closes it.
Item {
    id: dialog

    property alias model: list.model
    // For a screen reader.
    property string title
    property int size: 1
    property var current: "."
    // The item that had the focus before. It gets the focus back.
    property Item itemBefore

    // `index` is the value of the chosen entry.
    signal selected(var index)

    // On purpose: the animation has no target and is completed as soon as it starts, so the list vanishes at once.
    function end() {
        if (itemBefore)
            itemBefore.forceActiveFocus()
        disappear.start()
        disappear.complete()
        dialog.destroy()
    }

    // Takes the focus. If the keyboard is used, the current entry gets it.
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
    // The focus does not leave the dialog.
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
