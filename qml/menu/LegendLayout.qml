import QtQuick 2.7

import "../controls"

Item {
    id: legendLayout

    readonly property int rectHeigth: themeData.iconSizeMedium
    readonly property real spacing: themeData.fontSizeSmall * 0.5
    // The names of the signal classes for the user, by the classes' names on the line.
    readonly property var words: ({ WIFI: "Wi-Fi", DIG: qsTr("DIG"), FPV: "FPV" })

    height: rectHeigth + spacing

    ListView {
        id: row

        readonly property real offset: themeData.fontSizeSmall * 0.5

        anchors.fill: parent
        anchors.leftMargin: offset
        anchors.rightMargin: offset
        anchors.topMargin: offset
        spacing: offset
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        model: ["WIFI", "DIG", "FPV"]

        delegate: Rectangle {
            readonly property string word: legendLayout.words[modelData]
            readonly property var fills: [themeData.wifiColor, themeData.digColor, themeData.fpvColor]

            Accessible.role: Accessible.StaticText
            Accessible.name: word
            width: (legendLayout.width - 4 * row.offset) / 3
            height: legendLayout.rectHeigth
            border.color: themeData.strokeColor
            color: usbService.isUsbActive ? fills[index] : "transparent"

            FittedText {
                anchors.fill: parent
                anchors.margins: parent.border.width
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pointSize: themeData.iconSizeSmall
                font.bold: true
                color: themeData.lightTextColor
                text: word
            }
        }
    }
}
