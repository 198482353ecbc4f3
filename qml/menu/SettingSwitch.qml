import QtQuick 2.0

import "../controls"

// A switch for a setting that every device has.
UavSwitchStyled {
    id: item

    property alias setting: mirrored.setting

    width: parent.width
    height: themeData.iconSizeSmall
    switchEnabled: usbService.isUsbActive
    onClicked: mirrored.commit()

    MirroredValue {
        id: mirrored

        control: item
        shownAs: "checked"
        handler: confHndlr
    }
}
