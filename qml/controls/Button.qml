import QtQuick 2.7

ButtonFrame {
    id: button

    property alias iconSource: icon.source
    property alias text: label.text
    property alias textColor: label.color
    property alias textSize: label.font.pointSize // No caller today.

    spokenName: text

    FittedText {
        id: label

        anchors.fill: parent
        anchors.margins: button.radius * 0.5
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        // A long text is first broken into lines, and made smaller only if that is not enough.
        wrapMode: Text.WordWrap
        fontSizeMode: Text.Fit
        font.pointSize: themeData.fontSizeSmall
        color: button.currentTextColor
    }

    Image {
        id: icon

        x: button.border + button.radius * 0.5
        y: x
        height: button.iconSize
        width: height
        sourceSize: Qt.size(width, height)
        opacity: button.iconOpacity
    }
}
