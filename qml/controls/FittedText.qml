import QtQuick 2.0

// A text that is set smaller where it is too long for its width, rather than being cut.
Text {
    fontSizeMode: Text.HorizontalFit
    minimumPointSize: 1
}
