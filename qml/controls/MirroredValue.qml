import QtQuick 2.0

// Ties a control to a property of a settings front-end, in both directions. A touch overwrites the control's binding,
// so it is made anew each time the front-end notifies, which it does on every message and commit, changed or not.
QtObject {
    property Item control
    // The control's property that shows the value.
    property string shownAs
    property var handler
    // The handler's property.
    property string setting
    // Shown in place of the value while not connected, if it is given.
    property var absent

    function show() {
        // A message must not pull a slider out of the user's hand; the commit on release shows the value again.
        if (control.pressed === true || control.isStepping === true)
            return
        control[shownAs] = Qt.binding(function () {
            return absent === undefined || usbService.isUsbActive ? handler[setting] : absent
        })
    }

    function commit() {
        handler[setting] = control[shownAs]
        handler.changed()
    }

    Component.onCompleted: {
        handler[setting + "Changed"].connect(show)
        show()
    }
}
