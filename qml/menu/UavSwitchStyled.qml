import QtQuick 2.0
import uavSwitch 1.0

// A painted switch that a click turns over.
Item {
    id: item

    property alias checked: sw.checked
    property alias text: sw.text
    property alias switchEnabled: sw.switchEnabled

    // Passed on once `checked` has its new state.
    signal clicked

    MouseArea {
        width: item.width
        height: item.height
        enabled: item.switchEnabled
        onClicked: {
            sw.checked = !sw.checked
            item.clicked()
        }

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
