import QtQuick 2.7
import barScanResultPlot 1.0
import freqPlot 1.0
import histView 1.0

import "../controls"

Rectangle {
    id: mainPage

    // Time without a scan, in ms, after which the bands are shown faintly: the device may be unplugged, and missing
    // data must not look like a clear sky. It is three times the pause of the slowest detection mode.
    property int silenceMs: 15000
    property bool silent: false
    readonly property string silenceInWords: qsTr("No scan for %1 seconds").arg(silenceMs / 1000)
    // The names of the signal classes in the legend, by the classes' names on the line.
    property var classWords: ({})
    // From here down, in pixels from the top, a drawer covers the page. The keyboard and a screen reader skip covered bands.
    property real coveredFrom: Infinity

    objectName: "mainPage"
    color: "transparent"

    Timer {
        id: silence

        interval: mainPage.silenceMs
        running: usbService.isUsbActive
        onRunningChanged: {
            if (running)
                mainPage.silent = false
        }
        onTriggered: mainPage.silent = true
    }

    Connections {
        target: usbService
        function onGotScanResult() {
            if (usbService.isUsbActive)
                silence.restart()
        }
    }

    ListView {
        id: plots

        // The views of each band, by row.
        property var histViews: []
        property var barPlots: []
        property var freqPlots: []

        // A multiple of the number of rows, so that all rows have the same height in whole pixels.
        function getH() {
            var h = parent.height
            var rows = historyModel.rowCount()
            return rows === 0 ? h : h - h % rows
        }

        function showHistories() {
            for (var i = 0; i < historyModel.rowCount(); ++i) {
                var history = historyModel.getHistory(i)
                histViews[i].setHistory(history)
                barPlots[i].setHistory(history)
                freqPlots[i].setHistory(history)
            }
        }

        width: parent.width
        height: parent.height
        opacity: mainPage.silent ? 0.4 : 1
        clip: true
        spacing: 0
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: -1
        keyNavigationEnabled: false
        model: historyModel

        Component.onCompleted: {
            usbService.gotConfig.connect(historyModel.setConfig)
            usbService.gotScanResult.connect(historyModel.acceptScanResult)
            historyModel.gotHistory.connect(showHistories)
        }

        FocusMemory {
            id: focusMemory

            list: plots
        }

        delegate: Rectangle {
            id: rect

            // The views side by side, in the order of `selected`.
            readonly property var views: [barPlot, freqPlot, histView]
            property int selected: 0
            // The band's name and the strongest signal of its newest scan.
            property var newest: historyModel.getNewest(index)
            readonly property string newestInWords: (mainPage.silent ? mainPage.silenceInWords + ". " : "")
                    + (newest.type === undefined ? qsTr("No signal")
                       : qsTr("Strongest: ") + newest.freq + " " + qsTr("MHz") + ", " + newest.rssi + " "
                         + qsTr("dB") + ", "
                         + (mainPage.classWords[newest.type] || newest.type))

            function select(next) {
                // Visible before the move, so that it paints the data that came while it was hidden.
                views[next].visible = true
                selected = next
            }

            // To the next view (1) or the one before (-1).
            function swipe(step) {
                var next = selected + step
                if (!anim.running && next >= 0 && next < views.length)
                    select(next)
            }

            x: -selected * plots.width
            width: plots.width * 3
            height: plots.getH() / historyModel.rowCount()
            color: "transparent"
            clip: true
            visible: usbService.isUsbActive
            enabled: visible

            onXChanged: anim.complete()

            Connections {
                target: historyModel
                function onGotHistory() {
                    // After a reset of the model its former rows exist a little longer.
                    if (index >= 0 && index < historyModel.rowCount())
                        rect.newest = historyModel.getNewest(index)
                }
            }

            Behavior on x {
                SmoothedAnimation {
                    id: anim

                    velocity: 2000
                    // complete() alone has no effect on a SmoothedAnimation in a Behavior.
                    duration: 0
                    onRunningChanged: {
                        if (!running)
                            rect.views.forEach(function (view, i) { view.visible = i === rect.selected })
                    }
                }
            }

            BarScanResultPlot {
                id: barPlot

                width: plots.width
                height: rect.height
                backgroundColor: themeData.backgroundColor
                innerBorderColor: themeData.barPlotBorder
                lineWidth: themeData.fontSizeTiny * 0.1
                textSize: themeData.fontSizeTiny
                Component.onCompleted: plots.barPlots[index] = barPlot
            }

            FreqPlot {
                id: freqPlot

                x: plots.width
                width: plots.width
                height: rect.height
                visible: false
                backgroundColor: themeData.coursePlotBackground
                textColor: themeData.lightTextColor
                borderColor: themeData.gridColor
                textSize: themeData.fontSizeTiny
                lineWidth: themeData.fontSizeTiny * 0.2
                lang: qsTr("language")
                Component.onCompleted: plots.freqPlots[index] = freqPlot
            }

            HistView {
                id: histView

                x: plots.width * 2
                width: plots.width
                height: rect.height
                visible: false
                backgroundColor: themeData.darkTextColor
                textColor: themeData.lightTextColor
                borderColor: themeData.gridColor
                textSize: themeData.fontSizeTiny
                lineWidth: themeData.fontSizeTiny * 0.2
                // On purpose: the property is bound to itself. The data come only by setHistory.
                history: history
                Component.onCompleted: plots.histViews[index] = histView
            }

            MouseArea {
                property real lastX: 0
                readonly property int minFlick: 100

                anchors.fill: parent
                preventStealing: true
                onPressed: function (mouse) { lastX = mouse.x }
                onReleased: function (mouse) {
                    if (mouse.x - lastX > minFlick)
                        rect.swipe(-1)
                    else if (lastX - mouse.x > minFlick)
                        rect.swipe(1)
                }
            }

            // The band for the keyboard and a screen reader: the visible view.
            Item {
                id: reader

                readonly property var names: [qsTr("Bars"), qsTr("Course"), qsTr("Persistence")]
                readonly property rect plotArea: rect.views[rect.selected].plotArea

                x: rect.selected * plots.width
                width: plots.width
                height: rect.height
                visible: rect.y + height <= mainPage.coveredFrom
                enabled: visible
                activeFocusOnTab: enabled
                Keys.onLeftPressed: rect.swipe(-1)
                Keys.onRightPressed: rect.swipe(1)
                Accessible.role: Accessible.Chart
                Accessible.name: names[rect.selected] + " " + rect.newest.band
                Accessible.description: rect.newestInWords
                Accessible.focusable: enabled
                Accessible.onPreviousPageAction: rect.swipe(-1)
                Accessible.onNextPageAction: rect.swipe(1)
                Component.onCompleted: focusMemory.attach(index, reader)

                // The ring is around the data, so that it covers no label.
                FocusRing {
                    anchors.leftMargin: reader.plotArea.x
                    anchors.topMargin: reader.plotArea.y
                    anchors.rightMargin: reader.width - reader.plotArea.x - reader.plotArea.width
                    anchors.bottomMargin: reader.height - reader.plotArea.y - reader.plotArea.height
                }
            }
        }
    }
}
