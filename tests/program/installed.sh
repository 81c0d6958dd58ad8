#!/bin/bash
# installed.sh CMAKE BUILD_FOLDER SOURCE: an installation holds the tools with a manual page each, and
# a course that is built from there lies where the trainer looks for it.

set -u
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_DATA_HOME=$folder/data
fail() {
    echo "$*"
    exit 1
}

"$1" --install "$2" --prefix "$folder/usr" >"$folder/log" || fail "not installed"
for tool in tarnel-fly tarnel-course; do
    "$folder/usr/bin/$tool" --help >"$folder/usage" || fail "$tool does not run"
    page=$folder/$tool.1
    gunzip -c "$folder/usr/share/man/man1/$tool.1.gz" >"$page" || fail "$tool has no manual page"
    grep -o -- '--[a-z]*' "$folder/usage" | while read -r option; do
        grep -qF -- "${option//-/\\-}" "$page" || fail "$page lacks $option"
    done || exit 1
done
for program in "$folder"/usr/bin/*; do
    [ -s "$folder/usr/share/man/man1/${program##*/}.1.gz" ] || fail "${program##*/} has no manual page"
done
mkdir "$folder/mine" && cp "$3" "$folder/mine" && cd "$folder/mine" || exit 1
"$folder/usr/bin/tarnel-course" build ./*.toml || fail "not built"
"$folder/usr/bin/tarnel-course" print ./*.toml --out sheets.pdf || fail "not printed"
[ -s sheets.pdf ] && [ -s "$XDG_DATA_HOME/tarnel/courses/mine/study/e-hsi.sty" ]
