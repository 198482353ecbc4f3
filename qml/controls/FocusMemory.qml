import QtQuick 2.7

// For a list that makes its rows again while the keyboard may be on one of them: the new row takes it.
QtObject {
    property Item list
    property int row: -1

    // Called by each row once it is made, with the control in it that takes the keyboard.
    function attach(index, control) {
        if (list.activeFocus && row === index)
            control.forceActiveFocus()
        control.activeFocusChanged.connect(function (hasFocus) {
            if (hasFocus)
                row = index
        })
    }
}
