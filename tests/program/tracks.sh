#!/bin/bash
# tracks.sh TARNEL_FLY PLAN SCHEMA: programs that are not ours open what a flight is exported to, and
# find there the places of the flight's own table at their times.

set -u
fly=$1 plan=$2 schema=$3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
fail() {
    echo "$*"
    exit 1
}

"$fly" "$plan" --csv table.csv --track flight.gpx --track flight.KML --track flight.csv ||
    fail "not flown"
xmllint --noout --nonet --schema "$schema" flight.gpx || fail "no GPX 1.1"
# A sample is recorded on every fourth tick, from the third on, before the aircraft moves in it.
awk -F, 'NR > 1 && $1 % 4 == 2 { print ($1 - 2) / 3, $3, $4 }' table.csv >flown
[ "$(wc -l <flown)" -gt 100 ] || fail "too short a flight"
for format in gpx:flight.gpx kml:flight.KML unicsv:flight.csv; do
    asPoints=()
    [ "${format%%:*}" = unicsv ] || asPoints=(-x "transform,wpt=trk,del")
    gpsbabel -i "${format%%:*}" -f "${format#*:}" "${asPoints[@]}" \
        -o unicsv,utc=0,prec=9 -F read.csv || fail "$format is not read"
    # The last columns are the day, "2000/01/01", and the time of it, "00:00:01.333".
    awk -F, 'NR > 1 { split($NF, t, ":"); split($(NF - 1), d, "/")
        print ((d[3] - 1) * 24 + t[1]) * 3600 + t[2] * 60 + t[3], $2, $3 }' read.csv >opened
    paste -d " " flown opened | awk '
        function off(a, b) { return a > b ? a - b : b - a }
        NF != 6 || off($1, $4) > 0.001 || off($2, $5) > 1e-8 || off($3, $6) > 1e-8 {
            print "point", NR ":", $0; wrong = 1; exit }
        END { exit wrong }' || fail "$format differs from the flight"
done
