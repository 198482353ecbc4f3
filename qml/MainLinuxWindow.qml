import QtQuick 2.7
import QtQuick.Controls 2.0

ApplicationWindow {
    id: window

    objectName: "applicationWindow"
    width: 800
    height: 1000
    minimumWidth: 300
    minimumHeight: 400
    visible: true
    title: qsTr("Kelvane") + " " + version

    onWidthChanged: {
        themeData.windowWidth = window.width
        themeData.sizeChanged()
    }

    onHeightChanged: {
        themeData.windowHeight = window.height
        themeData.sizeChanged()
    }

    // On purpose: the contents, which the mobile platform shows in a window of its own, make the same connections.
    // So a message is accepted twice and an edit is sent twice.
    Component.onCompleted: {
        usbService.gotConfig.connect(confHndlr.accept)
        confHndlr.gotMsg.connect(usbService.sendConfig)
        usbService.gotAiPrior.connect(aiPriorHndlr.accept)
        aiPriorHndlr.gotMsg.connect(usbService.sendAiPrior)
        usbService.gotConfigK7.connect(confK7Hndlr.accept)
        confK7Hndlr.gotMsg.connect(usbService.sendConfigK7)

        themeData.windowWidth = window.width
        themeData.windowHeight = window.height
        themeData.sizeChanged()
    }

    Component.onDestruction: {
        if (usbService.isUsbActive)
            usbService.disconnect()
    }

    Rectangle {
        id: bkg

        z: -10
        anchors.fill: parent

        ApplicationContents {
            anchors.fill: parent
            vesper: false
        }
    }
}
