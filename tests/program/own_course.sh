#!/bin/bash
# own_course.sh TARNEL_COURSE SOURCE: without --out a course goes where the trainer looks for it, by
# the name of its folder, however the source is named.

set -u
course=$(readlink -f -- "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_DATA_HOME=$folder/data
mkdir -p "$folder/Kurs & 1" "$folder/.hidden"
cp "$2" "$folder/Kurs & 1/source.toml"
cp "$2" "$folder/.hidden/source.toml"
cd "$folder/Kurs & 1" && "$course" build source.toml || exit 1
[ -n "$(find "$folder/data/tarnel/courses/Kurs & 1" -type f -size +0)" ] || exit 1
"$course" build "$folder/.hidden/source.toml" 2>/dev/null
[ $? -eq 2 ] && [ ! -e "$folder/data/tarnel/courses/.hidden" ]
