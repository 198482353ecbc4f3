import QtQuick 2.7

import "../controls"

PreferenceRow {
    id: row

    property alias value: slider.value
    property alias min: slider.minimumValue // No caller today.
    property alias max: slider.maximumValue
    property alias step: slider.stepSize
    property alias setting: mirrored.setting
    property alias handler: mirrored.handler
    property alias absent: mirrored.absent

    // Emitted on release, after the value was committed.
    signal changed

    implicitHeight: textHeight + slider.height

    MirroredValue {
        id: mirrored

        control: slider
        shownAs: "value"
    }

    Row {
        x: row.indent
        y: row.textHeight
        width: row.width - row.indent
        spacing: themeData.fontSizeTiny * 0.5

        Slider {
            id: slider

            width: parent.width - label.width
            height: themeData.iconSizeSmall
            spokenName: row.title
            spokenSummary: row.summary
            onChanged: {
                mirrored.commit()
                row.changed()
            }
            onCanceled: mirrored.show()
        }

        Rectangle {
            id: label

            width: themeData.iconSizeLarge * 1.5
            height: slider.height
            color: "transparent"

            Text {
                anchors.verticalCenter: parent.verticalCenter
                color: themeData.lightTextColor
                font.pointSize: themeData.fontSizeSmall
                text: Math.min(Math.max(Math.round(slider.value), slider.minimumValue), slider.maximumValue)
            }
        }
    }
}
