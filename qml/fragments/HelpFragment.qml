import QtQuick 2.0

import "../controls"

// The help drawer: what the device reports about itself, the versions, and the manuals.
Item {
    id: fragment

    property alias open: customDrawer.visible
    property alias opener: customDrawer.opener
    property alias coversFrom: customDrawer.coversFrom
    // On purpose: the mode that the settings call "Standard" is "Base" here.
    readonly property var modeWords: ({
        ECO: qsTr("Efficient"), BASE: qsTr("Base"), AUTO: qsTr("Automatic"), CONT: qsTr("Continuous")
    })

    signal manualToggled

    function setting(value) {
        return usbService.isUsbActive ? value : "-----"
    }

    function onOff(isOn) {
        return setting(isOn ? qsTr("On") : qsTr("Off"))
    }

    function fromDevice(value) {
        return usbService.isUsbActive ? value : "vx.x"
    }

    component DataText: Text {
        width: Math.min(implicitWidth, dataTable.width * 0.5)
        wrapMode: Text.WordWrap
        color: themeData.lightTextColor
        font.pointSize: themeData.fontSizeSmall
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    component InfoText: FittedText {
        width: infoLabels.width
        // The device's version texts are shown unchanged.
        textFormat: Text.PlainText
        color: themeData.lightTextColor
        font.pointSize: themeData.fontSizeTiny
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ListModel {
        id: emptyModel

        ListElement { stringRange: "-----" }
    }

    DrawerFrame {
        id: customDrawer

        radius: themeData.fontSizeTiny
        topMargin: themeData.fontSizeTiny
        bottomMargin: themeData.fontSizeTiny
        leftMargin: themeData.fontSizeTiny
        contentHeight: buttons.implicitHeight + infoLabels.height + dataTable.height

        Grid {
            id: dataTable

            width: parent.width
            columns: 2
            flow: Grid.LeftToRight

            DataText {
                id: lb_mode

                text: qsTr("Mode: ")
            }
            DataText { text: fragment.setting(fragment.modeWords[confHndlr.enumMode]) }

            DataText { text: qsTr("Frequency bands: ") }
            ListView {
                id: lb_ranges

                readonly property real lineHeight: themeData.fontSizeSmall * 1.25
                property int numRanges: 0

                function setNumRanges() {
                    numRanges = usbService.isUsbActive ? masterModes.getNumRanges() : 0
                }

                width: dataTable.width * 0.5
                height: numRanges === 0 ? lineHeight : numRanges * lineHeight + themeData.fontSizeTiny * 0.5
                interactive: false
                model: usbService.isUsbActive ? masterModes : emptyModel

                Component.onCompleted: {
                    masterModes.rangesChanged.connect(setNumRanges)
                    masterModes.modelReset.connect(setNumRanges)
                    usbService.usbStateChanged.connect(setNumRanges)
                }

                delegate: Text {
                    height: stringRange === "" ? 0 : lb_ranges.lineHeight
                    color: themeData.lightTextColor
                    font.pointSize: themeData.fontSizeSmall
                    text: stringRange
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    Accessible.ignored: text === ""
                }
            }

            DataText { text: qsTr("Indication brightness: ") }
            DataText { text: fragment.setting(confHndlr.indLedLvl) }

            // On purpose: every device has a sound level, but only some have headphones.
            DataText { text: qsTr("Headphones volume: ") }
            DataText { text: fragment.setting(confHndlr.indSndLvl) }

            DataText { text: qsTr("LED indication: ") }
            DataText { text: fragment.onOff(confHndlr.indLed) }

            DataText { text: qsTr("Sound indication: ") }
            DataText { text: fragment.onOff(confHndlr.indSnd) }

            DataText { text: qsTr("Vibration: ") }
            DataText { text: fragment.onOff(confHndlr.indVibro) }

            DataText { text: qsTr("Wi-Fi scanning: ") }
            DataText { text: fragment.onOff(confHndlr.wifiDet) }
        }

        Column {
            id: infoLabels

            anchors.top: dataTable.bottom
            width: parent.width
            height: labText1.height * children.length + themeData.fontSizeTiny

            InfoText {
                id: labText1

                text: qsTr("Hardware: ") + fragment.fromDevice(confHndlr.hwVers)
            }
            InfoText { text: qsTr("Bootloader: ") + fragment.fromDevice(confHndlr.bootVers) }
            InfoText { text: qsTr("Firmware: ") + fragment.fromDevice(confHndlr.fwVers) }
            InfoText { text: qsTr("Application: ") + "v" + version }
            InfoText { text: qsTr("Serial number: ") + fragment.fromDevice(confHndlr.md5Serial) }
        }

        Column {
            id: buttons

            anchors.top: infoLabels.bottom

            Button {
                id: manual

                width: themeData.buttonSizeMedium
                height: themeData.iconSizeMedium
                color: themeData.backgroundColor
                text: qsTr("Manual")
                onClicked: fragment.manualToggled()
            }
        }
    }
}
