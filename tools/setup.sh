# Shared by ./run, ./test and the scripts here: installs what is missing and builds. Sourced with the tree's top as the working
# directory.

set -euo pipefail

BUILD_PACKAGES=(build-essential cmake ninja-build pkg-config libusb-1.0-0-dev rapidjson-dev libgtest-dev libgmock-dev)
SCREEN_PACKAGES=(fonts-dejavu-core xdg-utils)
TEST_PACKAGES=(locales xvfb xauth at-spi2-core dbus gir1.2-atspi-2.0 python3-gi)
CHECK_PACKAGES=(mmdebstrap mount lintian man-db desktop-file-utils appstream udev xvfb xauth xdotool imagemagick)
PACKAGE_PACKAGES=(dpkg-dev debhelper fakeroot librsvg2-bin)

fail() {
    echo "$1" >&2
    exit 1
}

mkdir -p build 2>/dev/null && [ -w build ] || fail "You may not write to $PWD/build; run this as the user who owns it."

apt_install() {
    "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null || true)" = installed ]
}

# usual_qt: prints Qt's major version: 5 (that is 5.15), or 6 if only Qt 6 is installed or available.
usual_qt() {
    local usual=5
    if ! command -v apt-get >/dev/null; then
        pkg-config --exists Qt5Core 2>/dev/null || ! pkg-config --exists Qt6Core 2>/dev/null || usual=6
    elif ! is_installed qtbase5-dev; then
        if is_installed qt6-base-dev || { ! apt-cache show qtbase5-dev && apt-cache show qt6-base-dev; } >/dev/null 2>&1; then
            usual=6
        fi
    fi
    echo $usual
}

# QT=6 in the environment chooses Qt 6. RELEASE, ADDRESS and THREAD are the presets' names, and their folders' in build/.
export QT=${QT:-$(usual_qt)}
case "$QT" in
    5)
        RELEASE=release ADDRESS=address THREAD=thread
        BUILD_PACKAGES+=(
            qtbase5-dev qtdeclarative5-dev qtdeclarative5-dev-tools qtquickcontrols2-5-dev libqt5svg5-dev qttools5-dev
            qttools5-dev-tools
        )
        SCREEN_PACKAGES+=(
            qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2 qml-module-qtquick-layouts
            qml-module-qtquick-templates2 qtwayland5
        )
        ;;
    6)
        RELEASE=qt6 ADDRESS=qt6-address THREAD=qt6-thread
        BUILD_PACKAGES+=(
            qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
        )
        SCREEN_PACKAGES+=(
            qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls qml6-module-qtquick-layouts
            qml6-module-qtquick-templates qml6-module-qtqml-workerscript qt6-wayland
        )
        # Debian 13 has what reads SVG pictures in a package of its own.
        [ -z "$(apt-cache madison qt6-svg-plugins 2>/dev/null)" ] || SCREEN_PACKAGES+=(qt6-svg-plugins)
        ;;
    *) fail "QT must be 5 or 6, not $QT." ;;
esac
# COMPILER=clang in the environment chooses clang instead of GCC, with Qt 5.15.
case "${COMPILER:-gcc}-$QT" in
    gcc-*) ;;
    clang-5) RELEASE=clang BUILD_PACKAGES+=(clang) ;;
    *) fail "COMPILER must be gcc, or clang with Qt 5.15." ;;
esac
# CROSS=arm64 or CROSS=armhf, which tools/on sets, builds what needs no Qt for that processor. Its tests run under emulation.
case "${CROSS-}" in
    '') ;;
    arm64 | armhf)
        RELEASE=$CROSS
        BUILD_PACKAGES=(
            crossbuild-essential-$CROSS cmake ninja-build pkg-config:$CROSS qemu-user rapidjson-dev libstdc++6:$CROSS
            libgtest-dev:$CROSS libgmock-dev:$CROSS
        )
        SCREEN_PACKAGES=() TEST_PACKAGES=(locales procps)
        ;;
    *) fail "CROSS must be arm64 or armhf." ;;
esac

# install_missing PACKAGE...: installs packages. It asks for sudo only if something is missing.
install_missing() {
    local package missing=()
    if ! command -v apt-get >/dev/null; then
        . tools/elsewhere.sh
        require_elsewhere "$@"
        return
    fi
    as_root=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "Missing packages, and no sudo to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    # Asks for the password here, where the user sees the prompt.
    [ ${#as_root[@]} -eq 0 ] || sudo -v || fail "sudo failed, so these packages are still missing: ${missing[*]}"
    logged build/install.log apt_install "${missing[@]}" || fail "Installing failed; see build/install.log."
}

# logged LOG COMMAND...: runs a command with its output in a log. A terminal shows the log's newest line meanwhile. Without a
# terminal, the log's end is printed if the command fails: nobody may find the log later.
logged() {
    local log=$1 running status=0
    shift
    "$@" >"$log" 2>&1 &
    running=$!
    while [ -t 1 ] && kill -0 $running 2>/dev/null; do
        printf '\r\033[K%.*s' "$((${COLUMNS:-80} - 1))" "$(tail -n 1 "$log")"
        sleep 0.3
    done
    wait $running || status=$?
    if [ -t 1 ]; then
        printf '\r\033[K'
    elif [ $status != 0 ]; then
        tail -n 20 "$log" >&2
    fi
    return $status
}

# because LOG: prints the first error in a log, with the lines after it.
because() {
    grep -m 1 -A 8 -E '(^|[: ])error:|CMake Error|undefined reference' "$1" >&2 || true
}

# build PRESET TARGET...
build() {
    local preset=$1 cache=build/$1/CMakeCache.txt log=build/$1.log
    shift
    # After a copy or a move of the tree, the old configuration would still build the old place.
    if [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "$cache"; then
        rm -rf "build/$preset"
    fi
    if [ ! -f "build/$preset/build.ninja" ] || [ CMakePresets.json -nt "$cache" ]; then
        logged "$log" cmake --preset "$preset" || {
            because "$log"
            fail "Configuring failed; see $log."
        }
        touch "$cache"
    fi
    logged "$log" cmake --build "build/$preset" --target "$@" || {
        because "$log"
        fail "Building failed; see $log."
    }
}
