#!/usr/bin/env bash
# Checks a package and a plain installation with the tools that Debian has for it, without installing the package:
# nothing may be found, not even something worth a warning.
# usage: validate.sh PACKAGE BUILD-FOLDER
set -euo pipefail
package=$(readlink -f "$1")
build=$(readlink -f "$2")
cd "$(dirname "$(readlink -f "$0")")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "validate: $*" >&2
    exit 1
}

lintian --fail-on error,warning "$package" || fail "lintian complains"

dpkg-deb -x "$package" "$work/tree"
share=$work/tree/usr/share
# Its exit status tells of errors only.
desktop-file-validate "$share/applications/quexal-editor.desktop" >"$work/said.txt" 2>&1 || fail "$(cat "$work/said.txt")"
[ ! -s "$work/said.txt" ] || fail "$(cat "$work/said.txt")"
appstreamcli validate --no-net --strict "$share"/metainfo/*.metainfo.xml || fail "appstreamcli complains"
appstreamcli validate-tree --no-net --strict "$work/tree" || fail "appstreamcli complains of the tree"
MANROFFSEQ='' MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l "$share/man/man1/quexal-editor.1.gz" \
    >"$work/manual.txt" 2>"$work/said.txt" || fail "man cannot show the manual page"
[ ! -s "$work/said.txt" ] || fail "the manual page: $(cat "$work/said.txt")"
# Every file that the manual page names is in the package.
while read -r named; do
    [ -e "$work/tree$named" ] || fail "the manual page names $named, which is not in the package"
done < <(grep -o '/\(etc\|usr\)/[a-z/._-]*[a-z]' "$work/manual.txt")
grep -q "qx_lower.txt" "$work/manual.txt" || fail "the manual page does not tell of the word list"
for section in BUGS AUTHOR; do
    grep -q "^$section" "$work/manual.txt" || fail "the manual page has no section $section"
done
scripts/icons.sh --check

# A plain installation can be moved, and keeps a word list that was changed.
cmake --install "$build" --prefix "$work/there" >/dev/null
mv "$work/there" "$work/here"
[ "$(readlink -f "$work/here/bin/quexal-editor")" = "$work/here/lib/quexal-editor/quexal-editor" ] ||
    fail "the command leads elsewhere"
[ "$(readlink -f "$work/here/lib/quexal-editor/qx_lower.txt")" = "$work/here/etc/quexal-editor/qx_lower.txt" ] ||
    fail "the link to the word list leads elsewhere"
[ -s "$work/here/lib/quexal-editor/guide/user-guide.html" ] || fail "the guide is not beside the program"
cmp data/qx_lower.txt "$work/here/lib/quexal-editor/qx_lower.txt" || fail "the word list is another one"
printf 'zzyzx\r\n' >>"$work/here/etc/quexal-editor/qx_lower.txt"
cp "$work/here/etc/quexal-editor/qx_lower.txt" "$work/changed.txt"
cmake --install "$build" --prefix "$work/here" >/dev/null
cmp "$work/changed.txt" "$work/here/lib/quexal-editor/qx_lower.txt" || fail "the changed word list was replaced"
echo "validate: nothing found in $(basename "$package")"
