#!/bin/bash
# own_course.sh TARNEL_COURSE: without --out a course goes where the trainer looks for it, by the
# name of its folder, however the source is named.

set -u
course=$(readlink -f -- "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_DATA_HOME=$folder/data
mkdir -p "$folder/Kurs & 1" "$folder/.hidden"
{
    echo 'exercise = "hsi"'
    echo 'situation = ['
    for radial in 15 45 75 105 135 165 195 225 255 285 315 345; do
        echo "  { station = \"MUN\", radial = $radial, distance = 10, heading = $radial," \
            "course = $(((radial + 5) % 360)), flown = 60 },"
    done
    echo ']'
} >"$folder/Kurs & 1/hsi.toml"
cp "$folder/Kurs & 1/hsi.toml" "$folder/.hidden"
cd "$folder/Kurs & 1" && "$course" build hsi.toml || exit 1
for file in study/hsi.sty study/e-hsi.sty sessions/hsi12.ts sessions/e-hsi12.ts; do
    [ -s "$folder/data/tarnel/courses/Kurs & 1/$file" ] || { echo "no $file"; exit 1; }
done
"$course" build "$folder/.hidden/hsi.toml" 2>/dev/null
[ $? -eq 2 ] && [ ! -e "$folder/data/tarnel/courses/.hidden" ]
