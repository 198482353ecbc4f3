# Sourced: what the scripts share that start programs on displays of their own. What is started ends with the script.
export XDG_RUNTIME_DIR
XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export XDG_CACHE_HOME=$XDG_RUNTIME_DIR/cache # nothing of theirs stays in the user's own
started=()
at_end=(:) # what else a script has to undo
trap end EXIT

# end: whatever of it fails, the rest is undone, and the script's own result stands.
end() {
    local status=$?
    set +e
    stop_started
    "${at_end[@]}"
    rm -rf "$XDG_RUNTIME_DIR"
    exit $status
}

stop_started() {
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
    started=()
}

# start COMMAND...: beside this script, silent.
start() {
    "$@" >"$XDG_RUNTIME_DIR/log" 2>&1 &
    started+=($!)
}

# wait_for COMMAND...: until it succeeds, half a minute at most.
wait_for() {
    local tries
    for ((tries = 0; tries < 60; ++tries)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.5
    done
    cat "$XDG_RUNTIME_DIR/log" >&2
    fail "Waited in vain: $*"
}

# start_x11 SIZE: an X server without a screen, on a free display, which DISPLAY then names.
start_x11() {
    # Without -noreset it begins anew after its last client, and may break off the next one meanwhile.
    start Xvfb -noreset -displayfd 3 -screen 0 "$1x24" -dpi 96 3>"$XDG_RUNTIME_DIR/display"
    wait_for test -s "$XDG_RUNTIME_DIR/display"
    export DISPLAY=:$(<"$XDG_RUNTIME_DIR/display")
}
