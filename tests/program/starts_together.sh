#!/bin/bash
# starts_together.sh PROGRAM [ROUNDS]: of ten programs that are started at once one must remain.

set -u
program=$1
rounds=${2:-1}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_RUNTIME_DIR=$folder HOME=$folder XDG_CONFIG_HOME=$folder/config QT_QPA_PLATFORM=offscreen
unset WAYLAND_DISPLAY
export DISPLAY=:none

for ((round = 1; round <= rounds; ++round)); do
    pids=()
    for _ in {1..10}; do
        "$program" >"$folder/log" 2>&1 &
        pids+=($!)
    done
    left=("${pids[@]}")
    for ((tenth = 0; tenth < 600 && ${#left[@]} > 1; ++tenth)); do
        sleep 0.1
        running=()
        for pid in "${left[@]}"; do
            kill -0 "$pid" 2>/dev/null && running+=("$pid")
        done
        left=("${running[@]}")
    done
    # The one that is left could be the last to find out.
    sleep 0.3
    alive=0
    for pid in "${pids[@]}"; do
        kill -0 "$pid" 2>/dev/null && ((++alive))
    done
    kill "${pids[@]}" 2>/dev/null
    failed=0
    for pid in "${pids[@]}"; do
        wait "$pid"
        status=$?
        [ "$status" -eq 0 ] || [ "$status" -eq 143 ] || ((++failed))
    done
    if [ "$alive" -ne 1 ] || [ "$failed" -ne 0 ]; then
        echo "round $round: $alive run, $failed failed"
        exit 1
    fi
done
echo "$rounds of $rounds"
