import QtQuick 2.7

Pressable {
    id: item

    property bool checked: true

    signal clicked

    function press() {
        checked = !checked
        clicked()
    }

    onActivated: press()
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: ring.press()

    // The switch takes its first position at once. Later moves are animated.
    Component.onCompleted: anim.velocity = 200

    Rectangle {
        id: bkg

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.5
        height: width * 0.5
        radius: height * 0.5
        color: item.checked ? themeData.switchOnColor : themeData.grooveColor
    }

    Rectangle {
        id: slider

        x: item.checked ? bkg.width * 0.5 : 0
        anchors.verticalCenter: bkg.verticalCenter
        width: bkg.height * 1.25
        height: width
        radius: width * 0.5
        color: item.checked ? themeData.accentColor : themeData.switchOffKnobColor

        Behavior on x {
            SmoothedAnimation {
                id: anim

                velocity: 10000
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: item.press()
    }
}
