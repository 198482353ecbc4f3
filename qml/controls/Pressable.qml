import QtQuick 2.7

// A control that the keyboard and a screen reader can press. They skip it while it is disabled.
Item {
    id: item

    // For a screen reader: the control's name, and its purpose or state.
    property string spokenName
    property string spokenSummary
    property alias ring: ring

    signal activated

    activeFocusOnTab: enabled
    Keys.forwardTo: ring
    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.description: ring.availability || spokenSummary
    Accessible.focusable: enabled
    Accessible.onPressAction: ring.press()

    FocusRing {
        id: ring

        z: 1
        onPressed: item.activated()
    }
}
