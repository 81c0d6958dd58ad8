#!/bin/bash
# outputs.sh TARNEL_FLY PLAN: what a tool writes is the old file or the new one, never a part, and
# never one of its inputs.

set -u
fly=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$2" "$folder/plan.toml"
cp "$2" "$folder/before"
export QT_QPA_PLATFORM=offscreen

# expect STATUS WHAT FILE COMMAND...: the command ends so, and FILE is still what it was before.
expect() {
    local status=$1 what=$2 file=$3
    shift 3
    "$@" >"$folder/log" 2>&1
    local was=$?
    if [ "$was" -ne "$status" ] || ! cmp -s "$folder/before" "$file"; then
        echo "$what: ended with $was instead of $status, or changed $file"
        cat "$folder/log"
        exit 1
    fi
}

plan=$folder/plan.toml
ln "$plan" "$folder/same"
for option in --csv --session --picture; do
    expect 3 "the plan as output" "$plan" "$fly" "$plan" $option "$plan"
    expect 3 "a link to it" "$plan" "$fly" "$plan" $option "$folder/same"
done
cp "$folder/before" "$folder/out.png"
expect 3 "two outputs in one file" "$folder/out.png" "$fly" "$plan" --csv "$folder/out.png" \
    --picture "$folder/./out.png"
limited() { (ulimit -f 1 && "$@"); }
for option in --csv --session --picture; do
    expect 3 "a limit on files, $option" "$folder/out.png" limited "$fly" "$plan" $option \
        "$folder/out.png"
done
# Devices of its own, so that a fault can't replace the machine's; only root can do either.
null=$folder/null full=$folder/full
mknod "$null" c 1 3 2>/dev/null || null=/dev/null
mknod "$full" c 1 7 2>/dev/null || full=/dev/full
expect 0 "a device" "$plan" "$fly" "$plan" --csv "$null"
expect 3 "a full device" "$plan" "$fly" "$plan" --csv "$full"
for pause in 0.02 0.1 0.3; do
    "$fly" "$plan" --csv "$folder/out.png" 2>/dev/null &
    sleep $pause
    kill -9 $! 2>/dev/null
    wait $! 2>/dev/null
    lines=$(wc -l <"$folder/out.png")
    cmp -s "$folder/before" "$folder/out.png" || [ "$lines" -gt 100 ] || exit 1
    cp "$folder/before" "$folder/out.png"
done
"$fly" "$plan" --csv "$folder/out.csv" && "$fly" "$plan" --csv - | cmp - "$folder/out.csv"
