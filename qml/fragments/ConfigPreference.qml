import QtQuick 2.7

import "../controls"

PreferenceRow {
    id: row

    signal clicked

    activeFocusOnTab: true
    Keys.forwardTo: ring
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: title
    Accessible.description: summary
    Accessible.focusable: true
    Accessible.onPressAction: ring.press()

    MouseArea {
        anchors.fill: parent
        anchors.leftMargin: row.indent
        onClicked: row.clicked()
    }

    FocusRing {
        id: ring

        anchors.leftMargin: row.indent * 0.9
        onPressed: row.clicked()
    }
}
