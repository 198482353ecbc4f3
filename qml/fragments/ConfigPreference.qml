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
        // Around the words, not over them; at the right the drawer ends.
        ring.anchors.margins: -5
        ring.anchors.rightMargin: 0
        onActivated: row.clicked()
        Accessible.role: Accessible.ButtonMenu

        MouseArea {
            anchors.fill: parent
            onClicked: row.clicked()
        }
    }
}
