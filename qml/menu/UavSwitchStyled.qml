import QtQuick 2.7
import uavSwitch 1.0

import "../controls"

// A painted switch. A click turns it on or off.
Pressable {
    id: item

    property alias checked: sw.checked
    property alias text: sw.text
    property alias switchEnabled: sw.switchEnabled

    // Emitted after `checked` has its new state.
    signal clicked

    function press() {
        sw.checked = !sw.checked
        clicked()
    }

    enabled: switchEnabled
    spokenName: text
    onActivated: press()
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: ring.press()

    MouseArea {
        width: item.width
        height: item.height
        enabled: item.switchEnabled
        onClicked: item.press()

        UavSwitch {
            id: sw

            anchors.fill: parent
            switchEnabled: false
            backgroundColor: themeData.backgroundColor
            lineWidth: themeData.fontSizeSmall * 0.1
            textSize: parent.height * 0.5
        }
    }
}
