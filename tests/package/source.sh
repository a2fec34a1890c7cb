#!/usr/bin/env bash
# Unpacks the sources in another folder, makes the archive for other Linux systems of them there, without git, and
# expects the very bytes of the one that was made here.
# usage: source.sh SOURCES ARCHIVE
set -euo pipefail
sources=$(readlink -f "$1")
archive=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "source: $*" >&2
    exit 1
}

mkdir "$work/bin" "$work/somewhere else"
printf '#!/bin/sh\necho "git was called" >&2\nexit 1\n' >"$work/bin/git"
chmod +x "$work/bin/git"
tar -C "$work/somewhere else" -xf "$sources" --warning=no-timestamp
cd "$work/somewhere else/$(basename "$sources" -source.tar.xz)"
[ ! -e .git ] || fail "there is a repository in the sources"
(umask 077 && PATH=$work/bin:$PATH TZ=Pacific/Auckland CCACHE_BASEDIR=$PWD scripts/archive.sh) ||
    fail "the sources are not enough"
cmp "$archive" "build/$(basename "$archive")" || fail "another archive was made of the same sources"
echo "source: the same archive was made of them, without git"
