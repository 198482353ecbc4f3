import QtQuick 2.0

// Stands in for the cover element that the platform itself brings.
Item {
    width: 234
    height: 374
}
