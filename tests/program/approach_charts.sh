#!/bin/bash
# approach_charts.sh FOLDER MENU CHARTS: each approach chart that the source MENU names lies in
# FOLDER as one sheet of A5 with the stations and the frequencies of CHARTS, and no two of its words
# overlap or stand at the paper's edge.

set -u
status=0
fail() {
    echo "$document: $*"
    status=1
}

documents=$(grep -o '[a-z]*[0-9]*app\[1\]\.pdf' "$2")
[ "$(wc -w <<<"$documents")" = 9 ] || { echo "not nine charts in the menu" && exit 1; }
for document in $documents; do
    file=$1/$document
    [ -s "$file" ] || { fail "missing" && continue; }
    [ "$(stat -c %s "$file")" -lt 100000 ] || fail "$(stat -c %s "$file") bytes"
    info=$(pdfinfo "$file")
    [[ $info =~ Pages:\ +1$'\n' && $info == *A5* ]] || fail "not one sheet of A5"
    text=$(pdftotext -layout "$file" - | tr -s ' ')
    grep -q 'NOT FOR NAVIGATIONAL PURPOSES - INFORMATION ONLY' <<<"$text" || fail "no warning"
    stations=$(sed -n "/^name = \"${document:0:4}\"/,/^threshold/p" "$3" |
        sed -n 's/.*name = "\([A-Z]*\)", frequency = "\([0-9.]*\)".*/\1 \2/p;
                s/^name = "\([A-Z]*\)"$/\1/p; s/^frequency = "\(.*\)"$/\1/p')
    [ "$(wc -w <<<"$stations")" = 10 ] || fail "not five stations in $3"
    while read -r station; do
        grep -qF "$station" <<<"$text" || fail "no $station"
    done <<<"$stations"
    pdftotext -bbox "$file" - | awk -F'"' '
        /<word/ {
            left[++n] = $2; top[n] = $4; right[n] = $6; bottom[n] = $8; word[n] = $9
            if ($2 < 19 || $4 < 15 || $6 > 401 || $8 > 580) { print "at the edge" word[n]; wrong = 1 }
            for (i = 1; i < n; ++i)
                if ($2 + 0.5 < right[i] && left[i] + 0.5 < $6 && $4 + 1.5 < bottom[i] && top[i] + 1.5 < $8) {
                    print "overlap" word[i] word[n]; wrong = 1
                }
        }
        END { exit wrong }' || fail "lettering out of place"
done
exit $status
