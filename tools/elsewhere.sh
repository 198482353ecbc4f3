# Sourced if there is no apt: finds out which of Debian's packages are missing, and knows their general names. Packages that
# are not in this list, such as fonts, are the user's own business.
declare -A GENERAL=(
    [build-essential]='command c++ a C++17 compiler'
    [cmake]='command cmake CMake 3.25'
    [ninja-build]='command ninja Ninja'
    [pkg-config]='command pkg-config pkg-config'
    [qtbase5-dev]='library Qt5Gui Qt 5.15 base with its headers'
    [qtdeclarative5-dev]='library Qt5Quick Qt 5.15 Declarative with its headers'
    [qtquickcontrols2-5-dev]='library Qt5QuickControls2 Qt 5.15 Quick Controls 2 with its headers'
    [libqt5svg5-dev]='library Qt5Svg Qt 5.15 SVG with its headers'
    [qttools5-dev]='folder Qt5LinguistTools Qt 5.15 Linguist tools'
    [qt6-base-dev]='library Qt6Gui Qt 6 base with its headers'
    [qt6-declarative-dev]='library Qt6QuickControls2 Qt 6 Declarative with its headers'
    [qt6-svg-dev]='library Qt6Svg Qt 6 SVG with its headers'
    [qt6-tools-dev]='folder Qt6LinguistTools Qt 6 Linguist tools'
    [libusb-1.0-0-dev]='library libusb-1.0 libusb 1.0 with its headers'
    [rapidjson-dev]='library RapidJSON RapidJSON'
    [libgtest-dev]='library gtest GoogleTest'
    [libgmock-dev]='library gmock GoogleMock'
    [qml-module-qtquick2]='module QtQuick.2 the QML module QtQuick 2'
    [qml-module-qtquick-window2]='module QtQuick/Window.2 the QML module QtQuick.Window 2'
    [qml-module-qtquick-templates2]='module QtQuick/Templates.2 the QML module QtQuick.Templates 2'
    [qml-module-qtquick-controls2]='module QtQuick/Controls.2 the QML module QtQuick.Controls 2'
    [qml6-module-qtquick]='module QtQuick the QML module QtQuick'
    [qml6-module-qtquick-window]='module QtQuick/Window the QML module QtQuick.Window'
    [qml6-module-qtquick-templates]='module QtQuick/Templates the QML module QtQuick.Templates'
    [qml6-module-qtquick-controls]='module QtQuick/Controls the QML module QtQuick.Controls'
    [xvfb]='command Xvfb Xvfb'
    [xauth]='command xauth xauth'
    [dbus]='command dbus-daemon D-Bus'
    [clang-format]='command clang-format clang-format'
    [clang-tidy]='command clang-tidy clang-tidy'
    [clang]='command clang++ Clang with libFuzzer'
    [xdg-utils]='command xdg-open xdg-utils'
)

# is_there KIND NAME: Qt's QML modules and CMake files are beside its libraries, and pkg-config knows where those are. Without
# pkg-config only pkg-config itself is reported as missing.
is_there() {
    local libraries
    libraries=$(pkg-config --variable=libdir "Qt${QT}Core" 2>/dev/null) || true
    case "$1" in
        command) command -v "$2" >/dev/null ;;
        library) ! command -v pkg-config >/dev/null || pkg-config --exists "$2" 2>/dev/null ;;
        folder) [ -z "$libraries" ] || [ -d "$libraries/cmake/$2" ] ;;
        module)
            [ -z "$libraries" ] || [ -d "$libraries/qt$QT/qml/$2" ] || [ -d "$libraries/qt/qml/$2" ] || [ -d "$libraries/../qml/$2" ]
            ;;
    esac
}

# require_elsewhere PACKAGE...
require_elsewhere() {
    local package kind name what missing=
    for package in "$@"; do
        [ -n "${GENERAL[$package]-}" ] || continue
        read -r kind name what <<<"${GENERAL[$package]}"
        is_there "$kind" "$name" || missing+=", $what"
    done
    [ -z "$missing" ] || fail "Missing, and no apt to install it: ${missing:2}."
}
