import QtQuick 2.7

// Announces a change that came by itself to users of a screen reader. Readers speak a notification when it appears.
Item {
    id: announcer

    property string words

    function say(what) {
        visible = false
        words = what
        visible = true
    }

    width: 1
    height: 1
    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: words
}
