#!/usr/bin/env bash
# examples-test.sh VIRTUAL-DEVICE DIRECTORY: runs the examples of the directory with a virtual detector.
set -euo pipefail
device=$1 examples=$2
work=$(mktemp -d)
started=()
trap 'kill "${started[@]}" 2>/dev/null; rm -rf "$work"' EXIT

fail() {
    echo "$1" >&2
    cat "$work"/*.txt >&2
    exit 1
}

# wait_for LINES FILE: waits until a file has this number of lines, a minute at most.
wait_for() {
    local tries
    for ((tries = 0; tries < 600; ++tries)); do
        [ "$(wc -l <"$2")" -lt "$1" ] || return 0
        sleep 0.1
    done
    fail "$2 stays short."
}

# connected FILE COMMAND...: starts an example again and again until it writes a line. On a busy machine it may miss the
# device's first answer.
connected() {
    local tries
    for tries in {1..20}; do
        "${@:2}" >"$1" 2>"$work/errors.txt" &
        example=$!
        started+=($example)
        while kill -0 $example 2>/dev/null && [ ! -s "$1" ]; do
            sleep 0.05
        done
        [ ! -s "$1" ] || return 0
        wait $example || true
    done
    fail "$2 does not connect."
}

"$device" --link "$work/serial/usb-virtual" --scene peaks --pace 50 >"$work/device.txt" &
started+=($!)
wait_for 1 "$work/device.txt"

connected "$work/watch.txt" "$examples/watch-signals" "$work/serial"
wait_for 6 "$work/watch.txt"
kill -INT $example
wait $example || fail "watch-signals ends with an error."
! grep -vE '^[0-9]{4} MHz, -[0-9.]+ dB, (WIFI|DIG|FPV)$' "$work/watch.txt" || fail "Lines of another kind."

connected "$work/log.txt" "$examples/log-scans" "$work/serial"
wait_for 3 "$work/log.txt"
kill -HUP $example
wait $example || fail "log-scans ends with an error."
! grep -vE '^\{"ms": [0-9]{13}, "scan": \{ "freqs" : .* "type" : "SCAN_RESULT" \}\}$' "$work/log.txt" ||
    fail "Lines of another kind."

# A detector that still scans would not be found again.
connected "$work/two.txt" bash -c '"$1" "$2" | head -n 2' bash "$examples/log-scans" "$work/serial"
wait $example || fail "log-scans does not end when nobody reads it."
connected "$work/set.txt" "$examples/set-brightness" 40 "$work/serial"
wait $example || fail "set-brightness ends with an error."
[ "$(cat "$work/set.txt")" = "Brightness: 40 %" ] || fail "It was not set."
! "$examples/set-brightness" 101 "$work/serial" 2>"$work/errors.txt" || fail "101 % are taken."
! "$examples/watch-signals" "$work/none" 2>"$work/errors.txt" || fail "A detector is found where none is."
grep -qx "No detector found." "$work/errors.txt" || fail "Nothing tells that there is no detector."
