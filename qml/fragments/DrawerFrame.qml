import QtQuick 2.0

// What a drawer is made of: as high as its content while the parent has room for that, else scrolling in all of it.
Rectangle {
    id: frame

    default property alias content: flick.flickableData
    property alias contentHeight: flick.contentHeight
    property alias topMargin: flick.topMargin
    property alias bottomMargin: flick.bottomMargin
    property alias leftMargin: flick.leftMargin

    anchors.bottom: parent.bottom
    anchors.horizontalCenter: parent.horizontalCenter
    width: parent.width
    height: Math.min(flick.contentHeight + flick.topMargin + flick.bottomMargin, parent.height)
    color: themeData.fragmentColor
    opacity: 0.8
    visible: false
    onVisibleChanged: flick.contentY = -flick.topMargin

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
