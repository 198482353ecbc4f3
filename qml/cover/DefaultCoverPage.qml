import QtQuick 2.0
import "vesper"

// Shows the strongest signals while the application is minimised.
CoverElement {
    id: cover

    // The colours of the signal classes, by the classes' names on the line.
    readonly property var colors: ({
        " ----": "#93cddd", WIFI: "#00b050", DIG: "#ffc000", FPV: "#ff0000", BLOCK: "#cccccc", ALL: "#93cddd"
    })

    objectName: "defaultCover"

    Component.onCompleted: usbService.gotMaxFreqs.connect(freqPlotModel.setScan)

    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: Theme.paddingSmall
        spacing: Theme.paddingSmall
        model: freqPlotModel

        delegate: Column {
            width: list.width
            height: list.height / freqPlotModel.rowCount() - list.spacing

            Text {
                id: freqText

                width: parent.width
                height: parent.height / 2
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                fontSizeMode: Text.Fit
                font.bold: true
                color: Theme.primaryColor
                text: freq
            }

            Rectangle {
                width: parent.width
                height: parent.height - freqText.height
                color: cover.colors[type]

                Row {
                    anchors.centerIn: parent
                    spacing: list.spacing

                    Text {
                        color: themeData.darkTextColor
                        text: rssi
                    }

                    Text {
                        color: themeData.darkTextColor
                        text: type
                    }
                }
            }
        }
    }
}
