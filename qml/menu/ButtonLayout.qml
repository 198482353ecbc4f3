import QtQuick 2.7

import "../controls"

Item {
    id: buttonLayout

    // The buttons that open the drawers.
    property alias configControl: configButton
    property alias helpControl: helpButton
    // True while the drawer is open.
    property bool isConfigOpen: false
    property bool isHelpOpen: false
    readonly property int buttonHeigth: themeData.iconSizeMedium
    readonly property real spacing: themeData.fontSizeSmall * 0.5
    // A function that returns the address of an icon. It takes the icon's names on the desktop and on the mobile
    // platform, and the button.
    property var icon

    signal help
    signal config
    // Emitted when the device has answered a mask request, or when its mask has changed.
    signal maskSet(bool isOn)

    // In words, because readers do not speak the checked state of a button.
    function openOrClosed(isOpen) {
        return isOpen ? qsTr("open") : qsTr("closed")
    }

    width: parent.width
    height: buttonHeigth + spacing

    Component.onCompleted: {
        usbService.gotBatteryState.connect(function (batt) { chargeButton.charge = batt })
        usbService.gotMask.connect(function (mask) {
            if (maskButton.waiting || maskButton.masked !== mask)
                maskSet(mask)
            maskButton.masked = mask
            maskButton.waiting = false
        })
        usbService.usbStateChanged.connect(function () { maskButton.waiting = false })
    }

    Row {
        anchors.centerIn: parent
        spacing: 1

        ImageTextButton {
            id: chargeButton

            property int charge: 0
            readonly property string level: charge < 20 ? "b0" : charge < 45 ? "b25" : charge < 70 ? "b50"
                                                         : charge < 95 ? "b75" : "b100"

            width: themeData.buttonSizeSmall
            height: buttonLayout.buttonHeigth
            enabled: usbService.isUsbActive
            iconSource: buttonLayout.icon(level, "battery", chargeButton)
            text: charge + "%"
            spokenName: qsTr("Battery") + " " + text
            onClicked: usbService.sendGetState()
        }

        Button {
            id: maskButton

            property bool masked: false
            property bool waiting: false

            width: themeData.buttonSizeSmall
            height: buttonLayout.buttonHeigth
            color: masked ? themeData.maskColor : chargeButton.color
            enabled: usbService.isUsbActive && !waiting
            text: waiting ? qsTr("Wait") : qsTr("Mask")
            spokenSummary: masked ? qsTr("on") : qsTr("off")
            Accessible.checkable: true
            Accessible.checked: masked
            onClicked: {
                waiting = true
                usbService.setMask()
            }
        }

        Button {
            id: fabricButton

            width: themeData.buttonSizeMedium
            height: buttonLayout.buttonHeigth
            enabled: usbService.isUsbActive
            text: qsTr("Fabric settings")
            onClicked: usbService.resetToDefaults(confHndlr.proto)
        }

        Button {
            id: configButton

            width: themeData.iconSizeMedium
            height: buttonLayout.buttonHeigth
            enabled: usbService.isUsbActive
            iconSource: buttonLayout.icon("cfg", "setting", configButton)
            spokenName: qsTr("Settings")
            spokenSummary: buttonLayout.openOrClosed(buttonLayout.isConfigOpen)
            Accessible.checkable: true
            Accessible.checked: buttonLayout.isConfigOpen
            onClicked: buttonLayout.config()
        }

        Button {
            id: helpButton

            // Clicks in a row while not connected; the twelfth starts the simulator.
            property int pressToTest: 0

            width: themeData.iconSizeMedium
            height: buttonLayout.buttonHeigth
            iconSource: buttonLayout.icon("info", "about", helpButton)
            spokenName: qsTr("Information")
            spokenSummary: buttonLayout.openOrClosed(buttonLayout.isHelpOpen)
            Accessible.checkable: true
            Accessible.checked: buttonLayout.isHelpOpen
            onClicked: {
                pressToTest = usbService.isUsbActive ? 0 : pressToTest + 1
                if (pressToTest === 12) {
                    pressToTest = 0
                    usbService.startTesting()
                }
                buttonLayout.help()
            }
        }

        Button {
            id: usbConnectButton

            width: themeData.iconSizeMedium
            height: buttonLayout.buttonHeigth
            iconSource: buttonLayout.icon("usb", "usb", usbConnectButton)
            spokenName: usbService.isUsbActive ? qsTr("Disconnect") : qsTr("Connect")
            onClicked: {
                if (usbService.isUsbActive)
                    usbService.disconnect()
                else
                    usbService.startUsb()
            }
        }
    }
}
