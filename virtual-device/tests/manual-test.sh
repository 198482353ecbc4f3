#!/usr/bin/env bash
# manual-test.sh VIRTUAL-DEVICE DIRECTORY: the manual and the completion of the virtual device, in the directory, know every
# option, generation, scene and fault that its help lists, in the same order.
# EMULATOR in the environment is the command that runs programs for another processor.
set -euo pipefail
help=$(${EMULATOR-} "$1" --help) directory=$2
. "$directory/uav-vesper-device.bash"
compopt() { :; }
failed=0

# expect WANTED GOT WHAT
expect() {
    [ "$1" != "$2" ] || return 0
    echo "$3: got '$2', wanted '$1'"
    failed=1
}
# The names in a section of the help.
listed() {
    awk -v section="$1:" '/^[A-Z]/ { inside = $0 == section }
        inside && /^  [^ ]/ { if (section == "Generations:") print; else print $1 }' <<<"$help" | xargs
}
# The names that a section of the manual explains.
explained() {
    sed -n "/^\.SH ${1^^}/,/^\.SH /p" "$directory/uav-vesper-device.1" |
        sed -nE '/^\.TP/ { n; s/\\//g; s/^\.BI? ([^ ]+).*/\1/p }' | xargs
}
# The words that bash offers after these.
offered() {
    COMP_WORDS=(uav-vesper-device "$@" '') COMP_CWORD=$(($# + 1))
    _uav_vesper_device
    echo "${COMPREPLY[@]}"
}

while read -r section option; do
    names=$(listed $section)
    [ -n "$names" ] || expect "names" "" "$section of the help"
    expect "$names" "$(explained $section)" "$section of the manual"
    expect "$names" "$(offered $option)" "what is offered after ${option:-the name}"
done <<'SECTIONS'
Options
Generations --generation
Scenes --scene
Faults --faults
SECTIONS

for option in $(listed Options); do
    expect "" "$(offered $option | grep -o -- '--[a-z]*')" "an option in place of the value of $option"
done
expect "$(listed Options | sed 's/--scene //')" "$(offered --scene drone)" "what is offered after --scene drone"
expect "$(listed Scenes)" "$(offered --scene =)" "what is offered after --scene="
exit $failed
