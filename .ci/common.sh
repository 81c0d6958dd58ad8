# shellcheck shell=bash
# What run, test and .ci/run share: packages, configuring, building. They source it from the
# project's own folder.

set -euo pipefail

# Lets ccache keep what is compiled with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

say() {
    printf '%s\n' "$*"
}

# Ends the script with one line that says what could not be had and what to do.
die() {
    local free
    free=$(df --output=avail -k . 2>/dev/null | tail -n 1) || free=
    if [ "${free:-999999}" -lt 20480 ]; then
        printf 'Stopped: the disk is full. Free some space and call this again.\n' >&2
    else
        printf 'Stopped: %s\n' "$*" >&2
    fi
    exit 1
}

make_folder() {
    if ! mkdir -p "$1" 2>/dev/null || [ ! -w "$1" ]; then
        die "can't write to $PWD/$1. Make the folder writable for $(id -un), or remove it."
    fi
}

# need_packages GROUP...: installs what is missing of these groups of packages.txt.
need_packages() {
    local group package present wanted=() missing=() words
    for group in "$@"; do
        read -ra words < <(sed -n "s/^$group://p" packages.txt) || die "packages.txt has no group '$group'."
        wanted+=("${words[@]}")
    done
    if ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian system: taking for granted that it has ${wanted[*]}."
        return
    fi
    # dpkg-query exits with 1 as soon as one package is unknown; what it prints counts.
    # shellcheck disable=SC2016
    present=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null) || true
    for package in "${wanted[@]}"; do
        grep -qxF "installed $package" <<<"$present" || missing+=("$package")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        install_packages "${missing[@]}"
    fi
}

install_packages() {
    local line="apt-get install --no-install-recommends $*" log=build/packages.log as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            say "Only root may install the missing packages. As root:"
            say "  apt-get update && $line"
            die "packages are missing. Call the line above as root, then this again."
        fi
        as_root=(sudo)
    fi
    make_folder build
    say "Installing $*"
    # The lists may be partly out of reach and still name all that is needed, so only the
    # installation decides.
    : >"$log" || die "can't write $PWD/$log."
    "${as_root[@]}" apt-get -q -o Acquire::Retries=3 update </dev/null >>"$log" 2>&1 || true
    if ! "${as_root[@]}" env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive apt-get -q -y \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=120 \
        install --no-install-recommends "$@" </dev/null >>"$log" 2>&1; then
        grep -E '^(E|Err|W|dpkg|sudo)\b' "$log" | tail -n 8 >&2 || tail -n 8 "$log" >&2
        die "could not install $*. Check the network and call this again, or as root: $line"
    fi
}

# cached FOLDER NAME: the value that a configured folder holds for a setting.
cached() {
    if [ -f "$1/CMakeCache.txt" ]; then
        sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt"
    fi
}

# Eight files of a folder are compiled as one, which takes a third of the time, as most of it goes to
# the headers that they share: for what is built whole each time. Whether each file has all that it
# needs, a build one by one shows.
in_batches=(CMAKE_UNITY_BUILD=ON CMAKE_UNITY_BUILD_BATCH_SIZE=8)
# What build-sanitize/ is configured with.
# shellcheck disable=SC2034,SC2054
sanitized=("${in_batches[@]}" TARNEL_TESTS=ON TARNEL_SANITIZE=address,undefined
    CMAKE_BUILD_TYPE=Debug "CMAKE_CXX_FLAGS_DEBUG=-O1 -g1")

# configure FOLDER NAME=VALUE...: configures a build folder unless it already stands like that. The
# mark is there only after a complete run of cmake and holds the place it was run in: without it, or
# in a checkout that was moved, the folder starts afresh, and so it does when ccache has gone.
configure() {
    local folder=$1 mark=$1/configured.txt log=$1/configure.log
    local setting settings=() needed='' fresh=() launcher
    shift
    make_folder "$folder"
    launcher=$(cached "$folder" CMAKE_CXX_COMPILER_LAUNCHER)
    for setting in "$@"; do
        settings+=("-D$setting")
    done
    if [ "$(cat "$mark" 2>/dev/null)" != "$PWD" ] || [ ! -f "$folder/build.ninja" ] ||
        { [ -n "$launcher" ] && ! command -v "$launcher" >/dev/null; }; then
        needed=yes
        fresh=(--fresh)
        if command -v ccache >/dev/null; then
            settings+=("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        fi
    fi
    for setting in "$@"; do
        [ "$(cached "$folder" "${setting%%=*}")" = "${setting#*=}" ] || needed=yes
    done
    if [ -z "$needed" ]; then
        return
    fi
    say "Configuring in $folder"
    rm -f "$mark"
    if ! env LC_ALL=C.UTF-8 \
        cmake -S . -B "$folder" -G Ninja "${fresh[@]}" "${settings[@]}" >"$log" 2>&1; then
        awk '/^CMake Error/ { failed = 1 } failed && shown++ < 40' "$log" >&2
        grep -q '^CMake Error' "$log" || tail -n 5 "$log" >&2
        die "cmake could not configure $folder. The whole log: $PWD/$log"
    fi
    printf '%s\n' "$PWD" >"$mark"
}

# Reads ninja's lines and shows how far it is: in place on a terminal, else at each tenth.
show_progress() {
    local line tenth last=-1 shown=
    while IFS= read -r line; do
        if [[ $line =~ ^\[([0-9]+)/([0-9]+)\]\  ]] && [ "${BASH_REMATCH[2]}" -gt 0 ]; then
            tenth=$((10 * BASH_REMATCH[1] / BASH_REMATCH[2]))
            if [ -t 1 ]; then
                printf '\r  %s of %s ' "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
                shown=yes
            elif [ "$tenth" -ne "$last" ]; then
                printf '  %s of %s\n' "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
            fi
            last=$tenth
        fi
    done
    if [ -n "$shown" ]; then
        printf '\n'
    fi
}

# build FOLDER [TARGET...]: builds these targets, or all. The compiler is heard only when it warns or
# fails. What the build itself runs, such as the painter of the pictures, needs no display.
build() {
    local folder=$1 log=$1/build.log
    shift
    say "Building in $folder"
    if ! env LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen NINJA_STATUS='[%f/%t] ' \
        ninja -C "$folder" "$@" 2>&1 | tee "$log" | show_progress; then
        # Each failure is followed by its command line, which says nothing to a reader.
        awk '/^CMake Error/ { failed = 1 }
             /^FAILED: / { failed = 1; print; getline; next }
             /^ninja: error/ || (failed && !/^\[[0-9]+\/[0-9]+\] / && shown++ < 60)' "$log" >&2
        # Where ninja itself has no way on, the folder is not to be trusted: next time afresh.
        if grep -q '^ninja: error' "$log"; then
            rm -f "$folder/configured.txt"
        fi
        die "the build failed, see above. The whole log: $PWD/$log"
    fi
    grep -F 'warning:' "$log" || true
}
