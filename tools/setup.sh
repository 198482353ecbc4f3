# Shared by ./run and ./test: installs what is missing and builds. Sourced with the tree's top as the working
# directory.

set -euo pipefail

BUILD_PACKAGES=(
    build-essential cmake ninja-build pkg-config
    qtbase5-dev qtdeclarative5-dev qtquickcontrols2-5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools
    libusb-1.0-0-dev rapidjson-dev libgtest-dev libgmock-dev
)
SCREEN_PACKAGES=(
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2 qml-module-qtquick-layouts
    qml-module-qtquick-templates2 qtwayland5 fonts-dejavu-core xdg-utils
)
TEST_PACKAGES=(locales xvfb xauth)

fail() {
    echo "$1" >&2
    exit 1
}

# install_missing PACKAGE...: asks for sudo only when something is missing.
install_missing() {
    local package missing=() as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "Missing packages, and no sudo to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    mkdir -p build
    {
        "${as_root[@]}" apt-get update &&
            "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
    } >build/install.log 2>&1 || fail "Installing failed; build/install.log tells why."
}

# build PRESET TARGET...
build() {
    local preset=$1 log
    shift
    log=build/$preset.log
    mkdir -p build
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"$log" 2>&1 ||
        fail "Configuring failed; $log tells why."
    cmake --build "build/$preset" --target "$@" >"$log" 2>&1 || {
        grep -m 1 -E '(^|[: ])error:|CMake Error|undefined reference' "$log" >&2 || true
        fail "Building failed; $log tells why."
    }
}
