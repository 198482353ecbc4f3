import QtQuick 2.7

import "../controls"

PreferenceRow {
    id: row

    signal clicked

    Pressable {
        anchors.fill: parent
        anchors.leftMargin: row.indent
        spokenName: row.title
        spokenSummary: row.summary
        // Around the words, not over them.
        ring.anchors.margins: -themeData.fontSizeMedium * 0.25
        onActivated: row.clicked()
        Accessible.role: Accessible.ButtonMenu

        MouseArea {
            anchors.fill: parent
            onClicked: row.clicked()
        }
    }
}
