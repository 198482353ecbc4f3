# Sourced after setup.sh: makes a minimal Debian system in a folder, from this system's own package source. Needs root.

# make_system FOLDER SUITE PACKAGE...: replaces the folder by a new system. If ARCHITECTURE is set, packages of that
# architecture can be installed there, too.
make_system() {
    local folder=$1 suite=$2 packages source
    rm -rf --one-file-system "$folder"
    packages=$(IFS=, && echo "${*:3}")
    source=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
    logged build/system.log mmdebstrap --mode=root --variant=apt ${packages:+--include="$packages"} \
        --architectures="$(dpkg --print-architecture)${ARCHITECTURE:+,$ARCHITECTURE}" "$suite" "$folder" "$source" ||
        fail "Making a system failed; see build/system.log."
}

# Runs in a mount and process namespace of its own. FOLDER becomes the root. It has a few devices and terminals of its own, so
# that a program there meets no device of this machine. The root is a mount, so that another system can be made inside. This
# shell stays the first process of the namespace, because many commands ignore signals as the first process. All other
# processes end with it.
ENTER_SYSTEM='
    set -e
    mount --bind "$1" "$1"
    mount -t proc proc "$1/proc"
    mount -t sysfs sysfs "$1/sys"
    mount -t tmpfs -o mode=755 tmpfs "$1/dev"
    for device in null zero full random urandom tty; do
        : >"$1/dev/$device"
        mount --bind "/dev/$device" "$1/dev/$device"
    done
    mkdir "$1/dev/pts" "$1/dev/shm"
    mount -t devpts -o newinstance,ptmxmode=666,mode=620,gid=5 devpts "$1/dev/pts"
    mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
    ln -s pts/ptmx "$1/dev/ptmx"
    ln -s /proc/self/fd "$1/dev/fd"
    for number in 0 1 2; do
        ln -s /proc/self/fd/$number "$1/dev/std$(echo in out err | cut -d " " -f $((number + 1)))"
    done
    set +e
    chroot "$@"
    exit $?'

# in_system FOLDER COMMAND...: runs a command in the system, without the environment of this shell. Its processes and mounts are
# gone when it ends, also if this script is killed.
in_system() {
    setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child sh -c "$ENTER_SYSTEM" sh "$1" \
        env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 TERM="${TERM:-dumb}" "${@:2}"
}
