import QtQuick 2.0

Text {
    anchors.left: parent.left
    anchors.right: parent.right
    wrapMode: Text.WordWrap
    color: themeData.accentColor
    font.bold: true
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
