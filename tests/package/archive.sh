#!/usr/bin/env bash
# Unpacks the archive into the smallest Debian of another release than it was built on, adds what its README says is
# needed, and uses the program there: in a folder that its user cannot write, and in one with blanks in its name that
# the user can. Needs root.
# usage: archive.sh ARCHIVE CACHE-FOLDER
set -euo pipefail
archive=$(readlink -f "$1")
cache=$2
# shellcheck source=tests/package/other_system.sh
. "$(dirname "$(readlink -f "$0")")/other_system.sh"

other=trixie
# shellcheck source=/dev/null
! grep -q "^VERSION_CODENAME=$other\$" /etc/os-release || fail "this machine is of the release $other itself"
unpack() { tar -C "$1" -xf "$archive" --warning=no-timestamp; }
# All that is in a folder, with rights and checksums.
whats_in() { (cd "$1" && find . -printf '%p %M %U:%G %l\n' -type f -exec sha256sum {} \; | sort); }
# Every library, or symbol, that files in a folder miss.
missing() {
    inside env LD_LIBRARY_PATH="$1/lib" find "$1" \( -name '*.so*' -o -name quexal-editor \) -exec ldd -r {} + ||
        fail "ldd failed"
    sed -nE "s/^\t(\S+) => not found/\1/p; s/^undefined symbol: (\S+).*/\1/p" "$work/log" | sort -u
}
uses() {
    whats_in "$root$1" >"$work/before.txt"
    "$here/use_installed.sh" "$root" maintainer "$2" "$1"
    whats_in "$root$1" | diff "$work/before.txt" - || fail "the program's folder was changed"
}

bare_system $other
unpack "$root/opt"
folder=/opt/$(basename "$archive" .tar.xz)
needs=$(sed -n 's/^    apt-get install --no-install-recommends //p' "$root$folder/README.txt")
glibc=$(sed -nE 's/.*(glibc [0-9.]+) .*/\1/p' "$root$folder/README.txt")
for need in "${glibc:?}" $needs libcups2t64; do
    grep -qF "$need" "$here/../../docs/packaging.md" || fail "docs/packaging.md does not say that it needs $need"
done
say "installing $needs"
# shellcheck disable=SC2086
installs $needs
! compgen -G "$root/usr/lib/*/libQt*" >/dev/null || fail "Qt is installed"
missing "$folder" >"$work/missing.txt"
[ "$(grep '\.so' "$work/missing.txt")" = libcups.so.2 ] ||
    fail "missing are, not only CUPS: $(xargs <"$work/missing.txt")"

say "using the program where its user cannot write"
[ "$(stat -c %U:%G "$root$folder")" = root:root ] || fail "the folder is not root's"
uses "$folder" reported

say "using the program in a folder with blanks"
blanks="/home/maintainer/my own  programs"
mkdir "$root$blanks"
unpack "$root$blanks"
mv "$root$blanks/$(basename "$folder")" "$root$blanks/the editor"
printf 'zzyzx\r\n' >>"$root$blanks/the editor/qx_lower.txt"
inside chown -R maintainer:maintainer "$blanks" || fail "chown failed"
uses "$blanks/the editor" listed

say "installing CUPS"
installs libcups2t64
missing "$folder" >"$work/missing.txt"
[ ! -s "$work/missing.txt" ] || fail "missing are: $(xargs <"$work/missing.txt")"
keep_archives
say "used in two folders, on Debian $other"
