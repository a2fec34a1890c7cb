#!/usr/bin/env bash
# Puts into a folder the licences of files that Debian packages brought to this machine, and libraries.txt, which says
# for each file from which package it is and which source package that was made of.
# usage: licences.sh FOLDER FILE...
set -euo pipefail
folder=$1
shift
mkdir -p "$folder/common-licenses"

# A file that was below /lib before /lib and /usr/lib became one may still be known there.
package_of() {
    local file
    file=$(readlink -f "$1")
    { dpkg -S "$file" 2>/dev/null || dpkg -S "${file#/usr}"; } | sed -n '1s/: .*//p'
}

{
    cat <<'TEXT'
The libraries in the folders lib and plugins are those of Debian, byte for byte. A line has the file, the package that
it is from, its version, and the source package with its version. The sources are on every Debian mirror while that
release of Debian lasts, and for good at https://snapshot.debian.org/package/SOURCE/VERSION/. You may put other versions
of the libraries in their place.

The licence of each is in the file with the name of its source package. What such a file refers to as
/usr/share/common-licenses is in the folder common-licenses.

TEXT
    for file in "$@"; do
        package=$(package_of "$file")
        # shellcheck disable=SC2016 # dpkg-query fills these in
        read -r name version source source_version < \
            <(dpkg-query -W -f '${Package} ${Version} ${source:Package} ${source:Version}\n' "$package")
        printf '%s %s %s %s %s\n' "$(basename "$file")" "$name" "$version" "$source" "$source_version"
        [ -e "$folder/$source.txt" ] || cp -L "/usr/share/doc/$name/copyright" "$folder/$source.txt"
        cmp -s "/usr/share/doc/$name/copyright" "$folder/$source.txt" || {
            echo "licences: $name has another licence than other packages of $source" >&2
            exit 1
        }
    done | LC_ALL=C sort | column -t
} >"$folder/libraries.txt"

grep -oh '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$folder"/*.txt | sort -u |
    xargs cp -L -t "$folder/common-licenses"
