#!/bin/bash
# print.sh TARNEL_COURSE COURSES: seven questions of each exercise, some on charts of their own, are
# printed in both languages: a page a question with its dials and its chart, then the solutions, all
# within the margins, in a file that a classroom can be sent.

set -u
course=$1
courses=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1

fail() {
    echo "$kind in $language: $*"
    exit 1
}
text() { pdftotext -layout -f "$1" -l "${2:-$1}" out.pdf -; }

for kind in hsi stdvor hsihld dghld adfpos qdm qdr wind dmearc orientation; do
    grep -v '^  {' "$courses/$kind.toml" | sed '/^]/d' >source.toml
    grep '^  {' "$courses/$kind.toml" | sed -n 12,18p >situations
    cat situations - <<<']' >>source.toml
    for language in de en; do
        question='Question %d of 7' solutions=Solutions
        [ "$language" = en ] || question='Frage %d von 7' solutions=Lösungen
        "$course" print source.toml --language $language --out out.pdf || fail "not printed"
        [ "$(pdfinfo out.pdf | sed -n 's/^Pages: *//p')" = 9 ] || fail "not 7 pages and 2"
        [ "$(stat -c %s out.pdf)" -lt 900000 ] || fail "too large: $(stat -c %s out.pdf)"
        for page in {1..7}; do
            # shellcheck disable=SC2059
            text "$page" | grep -q "$(printf "$question" "$page")" || fail "no question on page $page"
            station=$(sed -n "$page"'s/.* station = "\([^"]*\).*/\1/p' situations)
            text "$page" | grep -qw "$station" || fail "page $page does not show $station"
            dials=$([ $kind = orientation ] && echo 0 || echo 2)
            [ "$(pdfimages -list -f "$page" -l "$page" out.pdf | grep -c ' image ')" = "$dials" ] ||
                fail "not $dials dials on page $page"
            radial=$(sed -n "$page"'s/.* radial = \([0-9]*\).*/\1/p' situations)
            text 1 9 | grep -E 'min\.sec|: +- ' && fail "an answer as the exercise stores it"
            case $kind in hsi | stdvor | adfpos)
                text 8 9 | grep -q "$(printf %03d "$radial")" || fail "no solution $radial" ;;
            esac
        done
        [ "$(text 8 9 | grep -c " $solutions\$")" = 2 ] || fail "no solutions at the end"
        # A4 is 595 x 842 points, its margins are 51.
        pdftotext -bbox out.pdf - | awk -F'"' '/<word/ && ($2 < 50 || $4 < 50 || $6 > 545 || $8 > 792) \
            { print; cut = 1 } END { exit cut }' || fail "cut off at the margins"
    done
done
