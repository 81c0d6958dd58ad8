#!/bin/bash
# help.sh TARNEL_HELP SOURCES: what is wrong with a page of the help is told with its file and line.

set -u
help=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$2"/*.md "$folder" || exit 1
cd "$folder" || exit 1

# refused FILE:LINE WORDS: and is whole again afterwards.
refused() {
    "$help" . out >told 2>&1
    local result=$?
    if [ $result != 1 ] || ! grep -qF "$1" told || ! grep -qF "$2" told; then
        echo "not $1 ... $2 (1), but ($result):"
        cat told
        exit 1
    fi
    cp "$sources"/*.md .
}
sources=$2
line=$(($(wc -l <radios.en.md) + 2))
printf '\n[A page](not_there)\n' >>radios.en.md
refused "radios.en.md:$line" not_there
printf '\n![A picture](not_there.png)\n' >>radios.en.md
refused "radios.en.md:$line" not_there.png
sed -i 's/^# /## /' keys.de.md
refused keys.de.md:1 title
rm keys.de.md
refused keys.en.md:1 keys.de.md
