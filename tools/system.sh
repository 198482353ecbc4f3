# Sourced beside setup.sh: a minimal Debian system in a folder, made from this system's own package source. Needs root.

# make_system FOLDER SUITE PACKAGE...: in place of what is there.
make_system() {
    local folder=$1 suite=$2 packages source
    rm -rf "$folder"
    packages=$(IFS=, && echo "${*:3}")
    source=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
    logged build/system.log mmdebstrap --mode=root --variant=apt --include="$packages" "$suite" "$folder" "$source" ||
        fail "Making a system failed; build/system.log tells why."
}

# in_system FOLDER COMMAND...: with this system's devices, which are gone from there when the command ends.
in_system() {
    unshare --mount sh -c 'mount --rbind /dev "$1/dev" && mount -t proc proc "$1/proc" && exec chroot "$@"' sh "$@"
}
