import QtQuick 2.0

PreferenceRow {
    id: row

    signal clicked

    MouseArea {
        anchors.fill: parent
        anchors.leftMargin: row.indent
        onClicked: row.clicked()
    }
}
