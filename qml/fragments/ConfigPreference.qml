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
        // The ring is around the words, not over them. To the right there is no room, because the drawer ends there.
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
