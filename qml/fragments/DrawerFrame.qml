import QtQuick 2.7
import QtQuick.Window 2.7

// The base of a drawer. It is as high as its content; if the parent is smaller, it fills the parent and scrolls.
Rectangle {
    id: frame

    default property alias content: flick.flickableData
    property alias contentHeight: flick.contentHeight
    property alias topMargin: flick.topMargin
    property alias bottomMargin: flick.bottomMargin
    property alias leftMargin: flick.leftMargin

    // The button that opens the drawer. It takes the keyboard back when the drawer closes.
    property Item opener
    // The place from which the drawer covers the parent, in pixels from the parent's top.
    readonly property real coversFrom: visible ? y : Infinity
    readonly property Item itemInFocus: Window.activeFocusItem

    function hasFocus() {
        for (var item = itemInFocus; item && item !== flick.contentItem; item = item.parent) {}
        return !!item
    }

    // Scrolls to the control that gets the focus.
    onItemInFocusChanged: {
        if (!hasFocus())
            return
        var top = itemInFocus.mapToItem(flick.contentItem, 0, 0).y
        var end = top + itemInFocus.height + flick.bottomMargin - flick.height
        flick.contentY = Math.max(Math.min(flick.contentY, top - flick.topMargin), end)
    }

    anchors.bottom: parent.bottom
    anchors.horizontalCenter: parent.horizontalCenter
    width: parent.width
    height: Math.min(flick.contentHeight + flick.topMargin + flick.bottomMargin, parent.height)
    color: themeData.fragmentColor
    opacity: 0.8
    visible: false
    Accessible.role: Accessible.Dialog
    Accessible.name: opener ? opener.spokenName : ""
    onVisibleChanged: {
        flick.contentY = -flick.topMargin
        if (visible && lastGesture.isKeyboard)
            flick.contentItem.nextItemInFocusChain().forceActiveFocus()
        else if (!visible && hasFocus())
            opener.forceActiveFocus()
    }

    Flickable {
        id: flick

        anchors.fill: parent
        contentWidth: width - leftMargin
        clip: true
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds
        onHeightChanged: returnToBounds()
        onContentHeightChanged: returnToBounds()
    }
}
