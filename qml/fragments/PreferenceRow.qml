import QtQuick 2.7

// The base of all preferences: the title, and below it the purpose.
Item {
    id: row

    property alias title: titleText.text
    property alias summary: summaryText.text
    // Width that stays free to the right of the texts.
    property real reserved: 0
    readonly property real indent: themeData.fontSizeLarge * 3
    readonly property real textHeight: titleText.implicitHeight + summaryText.implicitHeight

    width: parent.width
    implicitHeight: textHeight

    Column {
        x: row.indent
        width: row.width - row.indent - row.reserved

        Text {
            id: titleText

            width: parent.width
            wrapMode: Text.WordWrap
            color: themeData.lightTextColor
            font.pointSize: themeData.fontSizeSmall
            font.bold: true
        }

        Text {
            id: summaryText

            width: parent.width
            wrapMode: Text.WordWrap
            color: themeData.summaryTextColor
            font.pointSize: themeData.fontSizeSmall * 0.8
        }
    }
}
