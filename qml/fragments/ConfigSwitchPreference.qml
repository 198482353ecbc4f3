import QtQuick 2.7

import "../controls"

PreferenceRow {
    id: row

    property alias checked: toggle.checked // No caller today.
    property alias setting: mirrored.setting
    property alias handler: mirrored.handler
    property alias absent: mirrored.absent

    signal clicked // No caller today.

    reserved: toggle.width + themeData.fontSizeSmall

    MirroredValue {
        id: mirrored

        control: toggle
        shownAs: "checked"
    }

    Switch {
        id: toggle

        anchors.right: parent.right
        anchors.rightMargin: themeData.fontSizeSmall
        width: themeData.iconSizeLarge * 1.5
        height: parent.height
        spokenName: row.title
        spokenSummary: row.summary
        onClicked: {
            mirrored.commit()
            row.clicked()
        }
    }
}
