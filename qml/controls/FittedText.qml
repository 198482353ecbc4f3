import QtQuick 2.0

// A text that is made smaller, not cut, if it is too long for its width.
Text {
    fontSizeMode: Text.HorizontalFit
    minimumPointSize: 1
}
