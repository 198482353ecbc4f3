import QtQuick 2.7

import "controls"
import "fragments"
import "menu"
import "pages"

// A focus scope, so that Escape still comes here while the control that had the focus is disabled.
FocusScope {
    id: contents

    // True on the mobile platform, which has its own icon theme.
    property bool vesper: false

    signal shareClicked // No caller today.

    // Opens or closes a drawer. At most one is open.
    function toggle(drawer, other) {
        other.open = false
        drawer.open = !drawer.open
    }

    focus: true
    Keys.onEscapePressed: function (event) {
        event.accepted = helpFragment.open || configFragment.open
        helpFragment.open = configFragment.open = false
    }

    // On purpose: the desktop's window makes the same connections.
    Component.onCompleted: {
        usbService.gotConfig.connect(confHndlr.accept)
        confHndlr.gotMsg.connect(usbService.sendConfig)
        usbService.gotAiPrior.connect(aiPriorHndlr.accept)
        aiPriorHndlr.gotMsg.connect(usbService.sendAiPrior)
        usbService.gotConfigK7.connect(confK7Hndlr.accept)
        confK7Hndlr.gotMsg.connect(usbService.sendConfigK7)
    }

    Component.onDestruction: {
        if (usbService.isUsbActive)
            usbService.disconnect()
    }

    Announcer {
        id: announcer
    }

    Connections {
        target: usbService
        function onUsbStateChanged() {
            announcer.say(!usbService.isUsbActive ? qsTr("Not connected")
                          : qsTr("Connected") + (usbService.inTesting ? ". " + qsTr("Test mode") : ""))
        }
    }

    ListDialogs {
        id: dialogs
    }

    ListModel {
        id: manuals

        ListElement { name: qsTr("Kelvane 6"); value: "manuals/help_K6.pdf" }
        ListElement { name: qsTr("Kelvane 7"); value: "manuals/help_K7.pdf" }
    }

    Rectangle {
        anchors.fill: parent
        color: themeData.backgroundColor

        MainPage {
            id: page

            width: parent.width
            height: parent.height - themeData.menuHeight
            classWords: legend.words
            coveredFrom: Math.min(helpFragment.coversFrom, configFragment.coversFrom)
            onSilentChanged: {
                if (silent)
                    announcer.say(silenceInWords)
            }

            Rectangle {
                id: drawerRect

                z: 5
                anchors.fill: parent
                color: "transparent"

                HelpFragment {
                    id: helpFragment

                    opener: buttons.helpControl
                    anchors.bottom: parent.bottom
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: parent.width * 0.9
                    height: parent.height
                    onManualToggled: dialogs.open(qsTr("Manual"), manuals, undefined, function (file) {
                        Qt.openUrlExternally((contents.vesper ? "../" : "qrc:/") + file)
                    })
                }

                ConfigFragment {
                    id: configFragment

                    opener: buttons.configControl
                    anchors.bottom: parent.bottom
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: parent.width * 0.9
                    height: parent.height
                }
            }
        }

        Rectangle {
            id: menuPanel

            function getColor(enabled, pressed) {
                return enabled && !pressed ? themeData.lightTextColor : themeData.disabledTextColor
            }

            // The address of a button's icon in the resources, or in the theme of the mobile platform.
            function icon(desktopName, themeName, button) {
                if (!contents.vesper)
                    return "qrc:/icons/" + desktopName
                return "image://theme/icon-m-" + themeName + "?" + getColor(button.enabled, button.pressed)
            }

            function updateMenuHeight() {
                themeData.menuHeight = legend.height + buttons.height + settings.height
            }

            z: 10
            anchors.bottom: parent.bottom
            width: parent.width

            Component.onCompleted: {
                themeData.sizeChanged.connect(updateMenuHeight)
                updateMenuHeight()
            }

            LegendLayout {
                id: legend

                anchors.bottom: buttons.top
                width: parent.width
            }

            ButtonLayout {
                id: buttons

                anchors.bottom: settings.top
                icon: menuPanel.icon
                isConfigOpen: configFragment.open
                isHelpOpen: helpFragment.open
                onMaskSet: function (isOn) { announcer.say(isOn ? qsTr("Mask on") : qsTr("Mask off")) }
                onHelp: contents.toggle(helpFragment, configFragment)
                onConfig: contents.toggle(configFragment, helpFragment)
            }

            SettingsLayout {
                id: settings

                anchors.bottom: parent.bottom
                vesper: contents.vesper
                icon: menuPanel.icon
                onShareClicked: contents.shareClicked()
            }
        }
    }
}
