# Sourced by the scripts that start programs on displays of their own. These programs end with the script.
export XDG_RUNTIME_DIR
XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export XDG_CACHE_HOME=$XDG_RUNTIME_DIR/cache # so that the user's own cache stays as it is
started=()
at_end=(:) # a command that the script runs at its end
trap end EXIT

# end: if a part fails, the rest is still done. The script's own exit status is kept.
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

# start COMMAND...: runs a command in the background. Its output goes to a log.
start() {
    "$@" >"$XDG_RUNTIME_DIR/log" 2>&1 &
    started+=($!)
}

# wait_for COMMAND...: repeats the command until it succeeds, for at most half a minute.
wait_for() {
    local tries
    for ((tries = 0; tries < 60; ++tries)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.5
    done
    cat "$XDG_RUNTIME_DIR/log" >&2
    fail "This did not succeed within half a minute: $*"
}

# start_x11 SIZE: starts an X server without a screen on a free display, and sets DISPLAY.
start_x11() {
    # Without -noreset the server restarts after its last client and may cut off the next one.
    start Xvfb -noreset -displayfd 3 -screen 0 "$1x24" -dpi 96 3>"$XDG_RUNTIME_DIR/display"
    wait_for test -s "$XDG_RUNTIME_DIR/display"
    export DISPLAY=:$(<"$XDG_RUNTIME_DIR/display")
}
