#!/usr/bin/env bash
# Prints, as macros for installer.nsi, what the installer puts into the program's folder and what the uninstaller removes
# from it. The texts beside the program are the user's to change.
# usage: file-list.sh FOLDER, in which everything stands as it is to be installed
# shellcheck disable=SC2016 # the dollars are the installer's
set -euo pipefail
cd "${1:?usage: file-list.sh FOLDER}"

# Names below the folder, as Windows writes them.
names() { find . -mindepth 1 "$@" -printf '%P\n' | LC_ALL=C sort | tr / '\134'; }
texts() { names -maxdepth 1 -name '*.txt'; }
others() { names -type f | grep -vxF "$(texts)"; }

echo '!macro InstallFiles'
names -type d | sed 's|.*|CreateDirectory "$INSTDIR\\&"|'
others | while read -r name; do
    printf 'File "/oname=$INSTDIR\\%s" "${FILES}/%s"\n' "$name" "${name//\\//}"
done
texts | sed 's|.*|!insertmacro InstallText "&"|'
echo '!macroend'

echo '!macro RemoveFiles'
texts | sed 's|.*|!insertmacro RemoveText "&"|'
others | sed 's|.*|Delete "$INSTDIR\\&"|'
names -type d | LC_ALL=C sort -r | sed 's|.*|RMDir "$INSTDIR\\&"|'
echo '!macroend'
