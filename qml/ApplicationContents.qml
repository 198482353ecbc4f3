import QtQuick 2.0

import "menu"
import "pages"

Item {
    id: contents

    // True on the mobile platform, which has its own icon theme.
    property bool vesper: false

    signal shareClicked

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

    Rectangle {
        anchors.fill: parent
        color: themeData.backgroundColor

        MainPage {
            id: page

            width: parent.width
            height: parent.height - themeData.menuHeight
        }

        Rectangle {
            id: menuPanel

            function getColor(enabled, pressed) {
                return enabled && !pressed ? themeData.lightTextColor : themeData.disabledTextColor
            }

            function updateMenuHeight() {
                themeData.menuHeight = legend.height + buttons.height
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

                anchors.bottom: parent.bottom
                vesper: contents.vesper
                iconColor: menuPanel.getColor
            }
        }
    }
}
