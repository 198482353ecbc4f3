import QtQuick 2.7

Item {
    id: slider

    property real maximumValue: 100
    property real minimumValue: 0
    property real value: 75
    property real stepSize: 1
    property alias pressed: mouseArea.pressed
    // While an arrow key is down.
    property bool isStepping: false
    // For a screen reader.
    property string spokenName
    property string spokenSummary

    // Emitted on release of the mouse or of the key, not while the runner moves. Values are sent only then.
    signal changed
    // The drag scrolls what is around the slider. The receiver restores the value from before the press.
    signal canceled

    function setSteps(steps) {
        value = Math.min(Math.max(steps * stepSize, minimumValue), maximumValue)
    }

    // Moves to the next multiple of the step. The direction is 1 or -1.
    function step(direction) {
        var steps = value / stepSize
        setSteps(direction > 0 ? Math.floor(steps) + 1 : Math.ceil(steps) - 1)
    }

    function endStepping() {
        if (!isStepping)
            return
        isStepping = false
        if (visible)
            changed()
        else
            canceled()
    }

    function stepOnce(direction) {
        step(direction)
        changed()
    }

    width: 500
    height: 100
    opacity: enabled && !mouseArea.pressed && !isStepping ? 1 : 0.3
    Keys.onPressed: function (event) {
        if (event.key !== Qt.Key_Left && event.key !== Qt.Key_Right)
            return
        event.accepted = true
        isStepping = true
        step(event.key === Qt.Key_Right ? 1 : -1)
    }
    Keys.onReleased: function (event) {
        if (event.isAutoRepeat || (event.key !== Qt.Key_Left && event.key !== Qt.Key_Right))
            return
        event.accepted = true
        endStepping()
    }

    // The slider for the keyboard and a screen reader. A reader writes the value here, without any signal.
    Item {
        id: reader

        readonly property real minimumValue: slider.minimumValue
        readonly property real maximumValue: slider.maximumValue
        readonly property real stepSize: slider.stepSize
        property real value: slider.value

        z: 1
        anchors.fill: parent
        activeFocusOnTab: enabled
        onActiveFocusChanged: slider.endStepping()
        onValueChanged: {
            if (value === slider.value)
                return
            slider.setSteps(Math.round(value / stepSize))
            value = Qt.binding(function () { return slider.value })
            slider.changed()
        }
        Accessible.role: Accessible.Slider
        Accessible.name: slider.spokenName
        Accessible.description: slider.spokenSummary
        Accessible.onIncreaseAction: slider.stepOnce(1)
        Accessible.onDecreaseAction: slider.stepOnce(-1)

        FocusRing {}
    }

    Row {
        id: line

        x: runner.width * 0.5
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - runner.width
        height: 0.1 * parent.height
        spacing: runner.width

        Rectangle {
            // At width 0 the row would leave out the item and its spacing.
            width: runner.x - 0.5 * runner.width || -1
            height: parent.height
            radius: height * 0.5
            color: themeData.accentColor
        }

        Rectangle {
            width: parent.width - runner.x - 0.5 * runner.width
            height: parent.height
            radius: height * 0.5
            color: themeData.grooveColor
        }
    }

    Rectangle {
        id: runner

        readonly property real val: Math.min(Math.max(mouseArea.realValue, slider.minimumValue),
                                             slider.maximumValue)

        x: (val - slider.minimumValue) * line.width / (slider.maximumValue - slider.minimumValue)
        anchors.verticalCenter: parent.verticalCenter
        width: parent.height / 2
        height: width
        radius: width * 0.5
        color: themeData.accentColor
    }

    MouseArea {
        id: mouseArea

        readonly property real xStep: (width - runner.width)
                                      / ((slider.maximumValue - slider.minimumValue) / slider.stepSize)
        property real realValue: slider.value
        property point from
        // A drag keeps the direction of its first movement.
        property bool isSliding: false
        property bool isScrolling: false

        function findDirection(x, y) {
            var dx = Math.abs(x - from.x)
            var dy = Math.abs(y - from.y)
            if (isSliding || isScrolling || Math.max(dx, dy) < Qt.styleHints.startDragDistance)
                return
            isSliding = dx >= dy
            isScrolling = !isSliding
        }

        function getValue(x) {
            // On purpose: the value counts from 0, not from the minimum. All sliders of the screens begin at 0.
            slider.value = Math.round(x / xStep) * slider.stepSize
            realValue = slider.minimumValue
                    + (slider.maximumValue - slider.minimumValue) * x / (width - runner.width)
        }

        anchors.fill: parent
        preventStealing: isSliding
        drag.target: runner
        drag.axis: Drag.XAxis
        drag.minimumX: 0
        drag.maximumX: slider.width - runner.width
        drag.smoothed: false
        onPressed: function (mouse) {
            from = Qt.point(mouse.x, mouse.y)
            isSliding = isScrolling = false
        }
        onPositionChanged: function (mouse) { findDirection(mouse.x, mouse.y) }
        onMouseXChanged: getValue(Math.min(Math.max(mouseX - runner.width * 0.5, 0), width - runner.width))
        // A drag overwrites the binding. After the release the runner follows the value again.
        onPressedChanged: {
            if (!pressed)
                realValue = Qt.binding(function () { return slider.value })
        }
        onReleased: {
            if (isScrolling)
                slider.canceled()
            else
                slider.changed()
        }
        onCanceled: slider.canceled()
    }
}
