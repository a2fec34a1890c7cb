#!/usr/bin/env bash
# Installs the package into the smallest Debian there is and uses the program there; upgrades it with the word list as
# it came, and changed by an administrator; removes it and looks for anything left behind. Needs root.
# usage: install.sh PACKAGE CACHE-FOLDER
set -euo pipefail
package=$(readlink -f "$1")
cache=$2
# shellcheck source=tests/package/other_system.sh
. "$(dirname "$(readlink -f "$0")")/other_system.sh"

# All that is in the other system, with rights and checksums, but what apt and dpkg write down about their work.
whats_there() {
    (cd "$root" &&
        find . -xdev \( -path ./proc -o -path ./tmp -o -path ./home -o -path ./var/log -o -path ./var/cache/apt \
            -o -path ./var/lib/apt -o -path './var/lib/dpkg/status*' -o -path './var/lib/dpkg/*-old' \) -prune \
            -o -printf '%p %M %U:%G %l\n' -type f -exec sha256sum {} \; | sort)
}
# Makes a package of a later version, with a word more in its list if one is given.
later_package() {
    local version=$1 word=${2-}
    rm -rf "$work/later"
    dpkg-deb -R "$package" "$work/later"
    sed -i "s/^Version: .*/Version: $version/" "$work/later/DEBIAN/control"
    if [ -n "$word" ]; then printf '%s\r\n' "$word" >>"$work/later$list"; fi
    cp "$work/later$list" "$work/list-$version.txt"
    dpkg-deb --root-owner-group -b "$work/later" "$root/tmp/later-$version.deb" >/dev/null
}
list=/etc/quexal-editor/qx_lower.txt

bare_system ""

say "installing what the package says it needs"
inside apt-get satisfy -y --no-install-recommends "$(dpkg-deb -f "$package" Depends)" || fail "apt-get satisfy failed"
keep_archives
whats_there >"$work/before.txt"

say "installing the package and using the program"
cp "$package" "$root/tmp/first.deb"
inside dpkg -i /tmp/first.deb || fail "dpkg -i failed"
whats_there >"$work/installed.txt"
"$here/use_installed.sh" "$root" maintainer reported

say "upgrading"
later_package 99.1 qqplugh
installs /tmp/later-99.1.deb
cmp "$root$list" "$work/list-99.1.txt" || fail "a word list that nobody changed was not upgraded"
printf 'zzyzx\r\n' >>"$root$list"
cp "$root$list" "$work/changed.txt"
later_package 99.2 qqplugh
installs /tmp/later-99.2.deb
cmp "$root$list" "$work/changed.txt" || fail "the changed word list was not kept"
later_package 99.3 xyzzy
installs -o Dpkg::Options::=--force-confold /tmp/later-99.3.deb
cmp "$root$list" "$work/changed.txt" || fail "the changed word list was not kept beside a new one"
cmp "$root$list.dpkg-dist" "$work/list-99.3.txt" || fail "the new word list is not beside the changed one"
inside dpkg-query -W quexal-editor || fail "dpkg-query failed"
grep -q '99\.3$' "$work/log" || fail "the last version is not installed"
"$here/use_installed.sh" "$root" maintainer listed

say "removing"
inside apt-get remove -y quexal-editor || fail "apt-get remove failed"
cmp "$root$list" "$work/changed.txt" || fail "removing took the changed word list away"
[ ! -e "$root/usr/lib/quexal-editor" ] || fail "the program is still there"
inside apt-get purge -y quexal-editor || fail "apt-get purge failed"
whats_there >"$work/after.txt"
! cmp -s "$work/before.txt" "$work/installed.txt" || fail "nothing was installed"
diff "$work/before.txt" "$work/after.txt" || fail "something is left behind"
say "installed, used, upgraded and removed without a trace"
