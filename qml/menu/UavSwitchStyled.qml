import QtQuick 2.7
import uavSwitch 1.0

import "../controls"

// A painted switch that a click turns over.
Item {
    id: item

    property alias checked: sw.checked
    property alias text: sw.text
    property alias switchEnabled: sw.switchEnabled

    // Passed on once `checked` has its new state.
    signal clicked

    function press() {
        sw.checked = !sw.checked
        clicked()
    }

    enabled: switchEnabled
    activeFocusOnTab: true
    Keys.forwardTo: ring
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.description: ring.availability
    Accessible.focusable: enabled
    Accessible.onPressAction: ring.press()
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

    FocusRing {
        id: ring

        onPressed: item.press()
    }
}
