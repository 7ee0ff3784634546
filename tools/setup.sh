# shellcheck shell=sh
# SPDX-FileCopyrightText: 2026 The tonefret developers
# SPDX-License-Identifier: MIT
#
# Read by run, test and .ci/run, which set `root`, the project's folder, first. Brings a Debian machine to where the
# program can be built, and builds it. Where all is there already, it changes nothing and is quick about it.
: "${root:?}"

say() {
    printf '== %s\n' "$*"
}

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The names in debian/control's Build-Depends, without comments, versions and profiles.
builddepends() {
    awk '/^#/ { next }
         /^[^ \t]/ { inside = sub(/^Build-Depends:/, "") }
         inside' "$root/debian/control" |
        tr ',' '\n' | sed -e 's/[[(<|].*//' -e 's/[[:space:]]//g' -e '/^$/d'
}

# Of the named packages, those that nothing installed is or provides, on one line.
missing() {
    dpkg-query -W -f '${db:Status-Abbrev}|${Package}, ${Provides}\n' | awk -F '|' -v wanted="$*" '
        $1 ~ /^.i/ { count = split($2, names, /, */)
                     for (i = 1; i <= count; i++) { sub(/ .*/, "", names[i]); have[names[i]] } }
        END { count = split(wanted, names, " ")
              for (i = 1; i <= count; i++) if (!(names[i] in have)) line = line " " names[i]
              print substr(line, 2) }'
}

# Installs the named packages where they are missing.
install() {
    { command -v dpkg-query && command -v apt-get; } >/dev/null ||
        die "this machine has no apt; install what debian/control lists under Build-Depends yourself"
    lacking=$(missing "$@")
    [ -n "$lacking" ] || return 0
    if [ "$(id -u)" -eq 0 ]; then
        sudo=
    else
        sudo=sudo
        command -v sudo >/dev/null || die "no rights to install packages and no sudo; as root: apt-get install $lacking"
    fi

    say "Installing with apt: $lacking"
    # shellcheck disable=SC2016,SC2086 # expanded by the inner shell; one word per package
    $sudo sh -c 'export DEBIAN_FRONTEND=noninteractive
        set -- -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@"
        apt-get update; apt-get install --yes --no-install-recommends "$@"' install $lacking </dev/null ||
        die "apt could not install $lacking; the lines above say why"
}

# Installs what the program is built with.
setup() {
    # shellcheck disable=SC2046 # one word per package
    install $(builddepends)
    for tool in cmake ninja c++; do
        command -v "$tool" >/dev/null || die "there is no $tool on the PATH, though its package is installed"
    done
}

# Configures, where that is due, and builds a CMake preset.
build() {
    folder=$root/build/$1
    # Ninja follows the CMakeLists by itself, but not the presets.
    if [ -z "$(find "$folder/build.ninja" -newer "$root/CMakePresets.json" 2>/dev/null)" ]; then
        say "Configuring $1"
        (cd "$root" && cmake --preset "$1") || die "configuring $1 failed; the lines above say why"
    fi
    say "Building $1"
    (cd "$root" && cmake --build --preset "$1") || die "building $1 failed; the lines above say why"
}
