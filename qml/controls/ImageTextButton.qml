import QtQuick 2.7

ButtonFrame {
    id: button

    property alias iconSource: icon.source
    property alias text: label.text
    property alias textColor: label.color // No caller today.
    property alias textSize: label.font.pointSize // No caller today.

    spokenName: text

    Row {
        id: row

        anchors.fill: parent
        anchors.leftMargin: button.radius
        spacing: themeData.fontSizeTiny

        Image {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            height: button.iconSize
            width: implicitHeight > 0 ? implicitWidth / implicitHeight * height : 0
            sourceSize.height: height
            opacity: button.iconOpacity
        }

        FittedText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: row.width - icon.width - row.spacing - button.radius
            height: button.iconSize
            verticalAlignment: Text.AlignVCenter
            fontSizeMode: Text.Fit
            font.pointSize: themeData.fontSizeSmall
            color: button.currentTextColor
        }
    }
}
