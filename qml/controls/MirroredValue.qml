import QtQuick 2.0

// Connects a control and a property of a settings front-end, in both directions. A touch overwrites the control's
// binding. So the binding is set again at each notification of the front-end, which comes with every message and
// commit, also without a change.
QtObject {
    property Item control
    // The name of the control's property that shows the value.
    property string shownAs
    property var handler
    // The name of the front-end's property.
    property string setting
    // If given, it is shown instead of the value while not connected.
    property var absent

    function show() {
        // A message must not move a slider while the user drags it. The commit on release shows the value again.
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
