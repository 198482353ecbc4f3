import QtQuick 2.7
import QtQuick.Window 2.7

// Opens list dialogs over the whole window.
Item {
    property var component

    // Each entry has a name and a value. `selected` is called with the value of the entry that the user chooses.
    function open(title, entries, current, selected) {
        var dialog = component.createObject(Window.window)
        if (!dialog)
            return
        dialog.title = title
        dialog.size = entries.count
        dialog.model = entries
        dialog.current = current
        dialog.selected.connect(selected)
        dialog.begin()
    }

    Component.onCompleted: {
        component = Qt.createComponent("ListButtonDialog.qml")
        if (component.status === Component.Error)
            console.debug("Error:", component.errorString())
    }
}
