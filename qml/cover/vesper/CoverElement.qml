import QtQuick 2.0

// Stand-in for the cover element of the mobile platform.
Item {
    width: 234
    height: 374
}
