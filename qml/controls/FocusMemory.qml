import QtQuick 2.7

// For a list that replaces its rows. If the row that had the focus is replaced, the new one gets the focus.
QtObject {
    property Item list
    property int row: -1

    // Each new row calls this, with the control in the row that can get the focus.
    function attach(index, control) {
        if (list.activeFocus && row === index)
            control.forceActiveFocus()
        control.activeFocusChanged.connect(function (hasFocus) {
            if (hasFocus)
                row = index
        })
    }
}
