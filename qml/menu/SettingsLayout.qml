import QtQuick 2.7
import uavThreeSwitch 1.0

import "../controls"

Item {
    id: settingsLayout

    property bool vesper: false
    // A function that returns the address of an icon, as in the button row.
    property var icon

    signal shareClicked

    width: parent.width
    height: Math.max(switches.getSwitchesH(), buttons.getButtonsH())

    Row {
        id: row

        readonly property real offset: themeData.fontSizeSmall * 0.5

        anchors.fill: parent
        anchors.leftMargin: offset
        anchors.rightMargin: offset
        anchors.bottomMargin: offset
        spacing: offset

        Column {
            id: rangesCol

            // While there are no bands, the column has no height either, and the row leaves it out.
            width: ranges.count > 0 ? themeData.buttonSizeSmall : row.width

            ListView {
                id: ranges

                // Takes the bands of a CONFIG message. The sizes here depend on their number.
                function setConf(msg) {
                    masterModes.setConfig(msg)
                }

                function commit() {
                    confHndlr.ranges = masterModes.getRanges()
                    confHndlr.changed()
                }

                width: themeData.buttonSizeSmall
                height: count * (themeData.iconSizeSmall + row.offset)
                spacing: row.offset
                clip: false
                boundsBehavior: Flickable.StopAtBounds
                currentIndex: -1
                keyNavigationEnabled: false
                model: masterModes

                Component.onCompleted: {
                    usbService.gotConfig.connect(setConf)
                    masterModes.rangesChanged.connect(commit)
                }

                FocusMemory {
                    id: focusMemory

                    list: ranges
                }

                delegate: Rectangle {
                    width: themeData.buttonSizeSmall
                    height: themeData.iconSizeSmall
                    color: "transparent"

                    Pressable {
                        id: band

                        readonly property var positions: [qsTr("off"), qsTr("standard range"), qsTr("wide range")]

                        function press() {
                            sw.nextPosition()
                            valueRange = sw.position
                        }

                        anchors.fill: parent
                        enabled: usbService.isUsbActive
                        spokenName: stringMode
                        spokenSummary: positions[sw.position]
                        onActivated: press()
                        Accessible.role: Accessible.CheckBox
                        Accessible.checkable: true
                        Accessible.checked: sw.position !== UavThreeSwitch.OFF
                        Accessible.onToggleAction: ring.press()
                        Component.onCompleted: focusMemory.attach(index, band)

                        UavThreeSwitch {
                            id: sw

                            anchors.fill: parent
                            switchEnabled: usbService.isUsbActive
                            backgroundColor: themeData.backgroundColor
                            lineWidth: themeData.fontSizeSmall * 0.1
                            textSize: themeData.fontSizeSmall
                            text: stringMode
                            position: valueRange
                        }

                        MouseArea {
                            anchors.fill: parent
                            onClicked: band.press()
                        }
                    }

                    // Each commit repaints the switch.
                    Connections {
                        target: confHndlr
                        function onChanged() {
                            sw.positionChanged()
                        }
                    }
                }
            }
        }

        Column {
            id: switches

            function getSwitchesH() {
                return children.length * (themeData.iconSizeSmall + spacing)
            }

            width: themeData.buttonSizeSmall
            height: getSwitchesH()
            spacing: row.offset

            SettingSwitch {
                id: indSnd

                setting: "indSnd"
                text: qsTr("Sound")
            }

            SettingSwitch {
                id: indVibro

                setting: "indVibro"
                text: qsTr("Vibro")
            }

            SettingSwitch {
                id: wifiDet

                setting: "wifiDet"
                text: "Wi-Fi"
            }

            SettingSwitch {
                id: uavDet

                setting: "uavDet"
                text: qsTr("Dig")
            }
        }

        Column {
            id: buttons

            function getButtonsH() {
                return (children.length - (settingsLayout.vesper ? 0 : 1)) * (themeData.iconSizeMedium + spacing)
            }

            width: settingsLayout.vesper ? themeData.buttonSizeMedium : themeData.buttonSizeSmall
            height: getButtonsH()
            spacing: themeData.fontSizeSmall

            Button {
                id: sens

                readonly property var words: ({ LOW: qsTr("Low"), MID: qsTr("Mid"), HIGH: qsTr("High") })

                width: parent.width
                height: themeData.iconSizeMedium
                enabled: usbService.isUsbActive
                text: qsTr("Sens: ") + (words[confHndlr.sens] || confHndlr.sens)
                onClicked: {
                    confHndlr.nextSens()
                    confHndlr.changed()
                }
            }

            Button {
                id: ai

                readonly property var words: ({ AUTO: qsTr("Auto"), DEFAULT: qsTr("Default"), FIELD: qsTr("Field"),
                                                CITY: qsTr("City"), NONE: qsTr("None") })

                function setProto() {
                    aiPriorHndlr.proto = confHndlr.proto
                }

                width: parent.width
                height: themeData.iconSizeMedium
                enabled: usbService.isUsbActive
                text: qsTr("AI: ") + words[aiPriorHndlr.enumAiPrior]
                onClicked: {
                    aiPriorHndlr.nextAiPrior()
                    aiPriorHndlr.changed()
                }
                Component.onCompleted: confHndlr.protoChanged.connect(setProto)
            }

            ImageTextButton {
                id: share

                width: parent.width
                height: themeData.iconSizeMedium
                visible: settingsLayout.vesper
                enabled: settingsLayout.vesper
                iconSource: settingsLayout.icon("share", "share", share)
                text: qsTr("Share")
                onClicked: settingsLayout.shareClicked()
            }
        }

        FittedText {
            width: row.width - x
            font.pointSize: themeData.fontSizeLarge
            color: themeData.testModeColor
            text: "TEST MODE"
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            visible: usbService.isUsbActive && usbService.inTesting
        }
    }
}
