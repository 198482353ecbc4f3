# Sourced beside setup.sh: a minimal Debian system in a folder, made from this system's own package source. Needs root.

# make_system FOLDER SUITE PACKAGE...: in place of what is there. With ARCHITECTURE set, that one's packages install there, too.
make_system() {
    local folder=$1 suite=$2 packages source
    rm -rf --one-file-system "$folder"
    packages=$(IFS=, && echo "${*:3}")
    source=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
    logged build/system.log mmdebstrap --mode=root --variant=apt ${packages:+--include="$packages"} \
        --architectures="$(dpkg --print-architecture)${ARCHITECTURE:+,$ARCHITECTURE}" "$suite" "$folder" "$source" ||
        fail "Making a system failed; build/system.log tells why."
}

# In a mount and process namespace of its own: FOLDER becomes the root, with few devices and terminals of its own, so that what
# runs there meets no device of this machine. A root that is a mount lets another system be made inside. This shell stays the
# first process there: as such, many commands would ignore signals. All the rest ends with it.
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

# in_system FOLDER COMMAND...: with nothing of the environment. What it starts and mounts is gone when it ends, also when this
# script is killed.
in_system() {
    setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child sh -c "$ENTER_SYSTEM" sh "$1" \
        env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 TERM="${TERM:-dumb}" "${@:2}"
}
