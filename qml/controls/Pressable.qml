import QtQuick 2.7

// What the keyboard and a screen reader can press. What is not enabled they pass over.
Item {
    id: item

    // For a screen reader: what it is, and what it is for or how it stands.
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
