#!/bin/bash
# installed.sh BUILD_FOLDER SOURCE HAND: the package, installed below a folder of its own, serves a
# user who may write nothing but his home folder: a hand in the program (the plugin HAND) answers,
# flies and saves; the tools make a course. Nothing is written elsewhere, and nothing stays behind.

set -eu
build=$1 source=$2 hand=$3
folder=$(mktemp -d)
chmod 755 "$folder"
trap 'chmod -R u+w "$folder"; rm -rf "$folder"' EXIT
fail() {
    cat "$folder"/*.log
    echo "$*"
    exit 1
}
root=$folder/root home=$folder/home
mkdir -p "$home/mine" "$folder/plugins/generic" "$root"/var/lib/dpkg/{info,updates,triggers}
cp "$source" "$home/mine" && cp "$hand" "$folder/plugins/generic"
touch "$root/var/lib/dpkg/status"
package() {
    local rights=()
    [ "$(id -u)" -eq 0 ] || rights=(--force-not-root)
    PATH=$PATH:/usr/sbin:/sbin dpkg --root="$root" --log="$folder/dpkg.log" --force-depends \
        "${rights[@]}" "$@" >"$folder/package.log" 2>&1 || fail "dpkg $1"
}
# A user of this machine who owns nothing here but his home.
as_user() {
    local user=()
    [ "$(id -u)" -ne 0 ] || user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    env -i HOME="$home" PATH="$root/usr/bin:$PATH" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen \
        QT_PLUGIN_PATH="$folder/plugins" "${user[@]}" "$@"
}

cd "$folder"
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$folder/packed" \
    -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip >cpack.log 2>&1 || fail "not packed"
package --install packed/*.deb
rm -rf packed
size=$(du -sk --exclude=Buch "$root/usr" | cut -f1)
! grep -q '^CMAKE_BUILD_TYPE:.*=Rel' "$build/CMakeCache.txt" || [ "$size" -lt $((40 << 10)) ] ||
    fail "takes $size KiB"
[ ! -e "$root/usr/share/tarnel/temp.ts" ] || fail "debris of the tests"
for program in "$root"/usr/bin/*; do
    page=$root/usr/share/man/man1/${program##*/}.1.gz
    [ -s "$page" ] || fail "${program##*/} has no manual page"
    as_user env -u QT_QPA_PLATFORM "$program" --help >usage || fail "$program --help"
    status=0
    as_user env -u QT_QPA_PLATFORM "$program" --nonsense 2>wrong.log || status=$?
    [[ $status == 2 && -s wrong.log ]] || fail "$program --nonsense: $status"
    grep -o -- '--[a-z][a-z-]*' usage | while read -r option; do
        gunzip -c "$page" | grep -qF -- "${option//-/\\-}" || fail "$page lacks $option"
    done || exit 1
done
chmod -R a-w,a+rX "$root/usr" plugins
[ "$(id -u)" -ne 0 ] || chown -R 65534:65534 "$home"
touch before

as_user env QT_QPA_GENERIC_PLUGINS=tarnelhand timeout 120 tarnel >run.log 2>&1 ||
    fail "the trainer ended with $?"
grep -q 'stats.hsihld_total=1' "$home/.config/tarnel/settings.ini" || fail "no statistics"
[ -z "$(find "$home/.local/share/tarnel" -name temp.ts)" ] || fail "temp.ts stays"
(cd "$home/mine" && as_user tarnel-course build ./*.toml &&
    as_user tarnel-course print ./*.toml --out sheets.pdf) >course.log 2>&1 || fail "no course"
for made in mine/sheets.pdf .local/share/tarnel/courses/mine/study/e-hsi.sty; do
    [ -s "$home/$made" ] || fail "no $made"
done
[ -z "$(find "$root" -newer before)" ] || fail "written elsewhere: $(find "$root" -newer before)"

chmod -R u+w "$root/usr"
package --purge tarnel tarnel-handbook
left=$(cd "$root" && find . ! -path './var/lib/dpkg*' ! -path . ! -path ./var ! -path ./var/lib)
[ -z "$left" ] || fail "left behind: $left"
