#!/bin/bash
# screen_reader.sh PROGRAM: the trainer as a screen reader meets it, on a display, a bus and in a home
# folder of its own.

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -m 700 "$folder/run"
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME WAYLAND_DISPLAY AT_SPI_BUS_ADDRESS
export HOME=$folder XDG_RUNTIME_DIR=$folder/run
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
xvfb-run -a -s "-screen 0 1600x1000x24" dbus-run-session -- \
    /usr/bin/python3 "${0%.sh}.py" "$1" 2>"$folder/log" || {
    cat "$folder/log"
    exit 1
}
