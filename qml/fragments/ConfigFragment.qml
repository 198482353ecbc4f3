import QtQuick 2.0

// The settings drawer.
Item {
    id: fragment

    property alias open: customDrawer.visible
    property alias opener: customDrawer.opener
    property alias coversFrom: customDrawer.coversFrom
    readonly property bool hasK7Settings: confHndlr.hasK7Settings

    function setHeight(comp) {
        var sum = 0
        for (var i = 0; i < comp.children.length; ++i)
            sum += comp.children[i].implicitHeight + comp.spacing
        comp.height = sum
    }

    function setHeights() {
        if (hasK7Settings) {
            setHeight(configK7)
            setHeight(iface)
        } else {
            // A hidden row keeps its implicit height, so setHeight would give too much.
            configK7.height = 0
            iface.height = ifaceHeader.implicitHeight + indLedLvl.implicitHeight + iface.spacing
        }
    }

    Component.onCompleted: {
        themeData.sizeChanged.connect(function () {
            setHeight(detect)
            setHeights()
        })
        confHndlr.protoChanged.connect(setHeights)
        usbService.usbStateChanged.connect(function () {
            if (!usbService.isUsbActive)
                fragment.open = false
        })
        setHeight(detect)
        setHeight(configK7)
        setHeight(iface)
    }

    ListDialogs {
        id: dialogs
    }

    ListModel {
        id: scanModes

        ListElement { name: qsTr("Efficient"); value: "ECO" }
        ListElement { name: qsTr("Standard"); value: "BASE" }
        ListElement { name: qsTr("Automatic"); value: "AUTO" }
        ListElement { name: qsTr("Continuous"); value: "CONT" }
    }

    ListModel {
        id: aiModes

        ListElement { name: qsTr("AIDefault"); value: "DEFAULT" }
        ListElement { name: qsTr('Mode "Field"'); value: "FIELD" }
        ListElement { name: qsTr('Mode "City"'); value: "CITY" }
    }

    ListModel {
        id: alarmLevels

        ListElement { name: qsTr("Early (-99)"); value: -99 }
        ListElement { name: qsTr("Medium (-94)"); value: -94 }
        ListElement { name: qsTr("Late (-88)"); value: -88 }
    }

    ListModel {
        id: headModes

        ListElement { name: qsTr("Disconnected"); value: "OFF" }
        ListElement { name: qsTr("Sound"); value: "SOUND" }
        ListElement { name: qsTr("EW management"); value: "EW_CONTROL" }
    }

    DrawerFrame {
        id: customDrawer

        readonly property real lineSize: themeData.fontSizeSmall * 1.5 // No caller today.
        readonly property real headerSize: themeData.fontSizeLarge

        radius: themeData.fontSizeSmall
        topMargin: themeData.fontSizeSmall
        bottomMargin: themeData.fontSizeLarge
        leftMargin: themeData.fontSizeLarge
        contentHeight: detect.height + configK7.height + iface.height + topMargin + bottomMargin

        Column {
            id: detect

            width: parent.width
            spacing: themeData.fontSizeMedium

            SectionHeader {
                anchors.leftMargin: themeData.fontSizeMedium
                font.pointSize: customDrawer.headerSize
                text: qsTr("Detection")
            }

            ConfigPreference {
                id: mode

                title: qsTr("Scan mode")
                summary: qsTr("Radioscan frequence")
                onClicked: dialogs.open(title, scanModes, confHndlr.enumMode, confHndlr.setStringMode)
            }

            ConfigPreference {
                id: aiPrior

                title: qsTr("AI mode")
                summary: qsTr("AI mode configure")
                onClicked: dialogs.open(title, aiModes, aiPriorHndlr.enumAiPrior, aiPriorHndlr.setAiPrior)
            }
        }

        Column {
            id: configK7

            anchors.top: detect.bottom
            // On purpose: no size has this name, so the section follows without a gap.
            anchors.topMargin: themeData.fontSizeSmalll
            width: parent.width
            spacing: themeData.fontSizeMedium
            visible: fragment.hasK7Settings

            SectionHeader {
                font.pointSize: customDrawer.headerSize
                text: qsTr("Alarm")
            }

            ConfigSwitchPreference {
                id: voiceEn

                title: qsTr("Voice alarm")
                summary: qsTr("Speak detection results")
                handler: confK7Hndlr
                setting: "voiceEn"
                absent: false
            }

            ConfigPreference {
                id: voiceDbLvl

                title: qsTr("Alarm level")
                summary: qsTr("Speech alert with signal level specified and higher")
                onClicked: dialogs.open(title, alarmLevels, confK7Hndlr.voiceDbLvl, function (level) {
                    confK7Hndlr.voiceDbLvl = level
                    confK7Hndlr.changed()
                })
            }

            ConfigSliderPreference {
                id: indSndLvl

                title: qsTr("Sound volume")
                summary: qsTr("Alarm sound volume")
                handler: confHndlr
                setting: "indSndLvl"
            }

            ConfigSliderPreference {
                id: indHeadLvl

                title: qsTr("Headphones volume")
                summary: qsTr("3.5 mm headphones volume")
                handler: confK7Hndlr
                setting: "indHeadLvl"
                absent: 0
            }

            ConfigPreference {
                id: indHeadMode

                title: qsTr("Headphones output")
                summary: qsTr("3.5 mm headphones output mode")
                onClicked: dialogs.open(title, headModes, confK7Hndlr.enumMode(), confK7Hndlr.setMode)
            }

            ConfigSwitchPreference {
                id: indSnd

                title: qsTr("Sound")
                summary: qsTr("Sound alarm")
                handler: confHndlr
                setting: "indSnd"
            }

            ConfigSwitchPreference {
                id: indVibro

                title: qsTr("Vibro")
                summary: qsTr("Vibro alarm")
                handler: confHndlr
                setting: "indVibro"
            }
        }

        Column {
            id: iface

            anchors.top: configK7.bottom
            width: parent.width
            spacing: themeData.fontSizeMedium

            SectionHeader {
                id: ifaceHeader

                height: customDrawer.headerSize * 2
                font.pointSize: customDrawer.headerSize
                text: qsTr("Interface")
            }

            ConfigSliderPreference {
                id: indLedLvl

                title: qsTr("Brightness")
                summary: qsTr("Indication brightness")
                handler: confHndlr
                setting: "indLedLvl"
                onChanged: {
                    // With a K7 the display is a second light and has its own setting.
                    if (fragment.hasK7Settings) {
                        confK7Hndlr.dispLvl = value
                        confK7Hndlr.changed()
                    }
                }
            }

            ConfigSliderPreference {
                id: dispOffTime

                title: qsTr("Display timeout")
                summary: qsTr("Shut off the display for inactivity in seconds")
                visible: fragment.hasK7Settings
                max: 360
                step: 5
                handler: confK7Hndlr
                setting: "dispOffTime"
                absent: 0
            }
        }
    }
}
