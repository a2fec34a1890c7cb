#!/usr/bin/env bash
# Copies the libraries that programs and plug-ins need into a folder, but what is left to the system
# (system-libraries.txt), and prints where each came from.
# usage: libraries.sh FOLDER FILE...
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
folder=$1
shift
fail() {
    echo "libraries: $*" >&2
    exit 1
}

# Where this machine has each library that is needed in any way.
declare -A found taken
while read -r name path; do found[$name]=$path; done < <(ldd "$@" | sed -nE 's/^\t(\S+) => (\S+) .*/\1 \2/p')

# Marks what a file needs, and what that needs, unless it is marked already.
take() {
    local file=$1 mark=$2 name
    for name in $(objdump -p "$file" | sed -n 's/^ *NEEDED *//p'); do
        [ -z "${taken[$name]-}" ] || continue
        [ -e "${found[$name]-}" ] || fail "$file needs $name, which is not on this machine"
        taken[$name]=$mark
        take "${found[$name]}" "$mark"
    done
}

mapfile -t system < <(sed '/^#/d; /^$/d' "$here/system-libraries.txt")
for name in "${system[@]}"; do taken[$name]=system; done
for name in "${system[@]}"; do
    [ -z "${found[$name]-}" ] || take "${found[$name]}" system
done
for file in "$@"; do take "$file" inside; done

mkdir -p "$folder"
while read -r name; do
    [ "${taken[$name]}" = inside ] || continue
    install -m 644 "${found[$name]}" "$folder/$name"
    printf '%s\n' "${found[$name]}"
done < <(printf '%s\n' "${!taken[@]}" | LC_ALL=C sort)
