#!/usr/bin/env bash
# Unpacks the smallest Debian there is, of this machine's release or of the one that is named, from the archives that
# this machine uses. What was fetched is kept in the cache folder. Needs root.
# usage: debian_root.sh CACHE-FOLDER NEW-FOLDER [CODENAME]
set -euo pipefail
umask 022
cache=$1
root=$2
mkdir -p "$cache"
# shellcheck source=/dev/null
here=$(. /etc/os-release && echo "$VERSION_CODENAME")
codename=${3:-$here}
bare=$(readlink -f "$cache")/$codename-$(dpkg --print-architecture).tar

indexes() { apt-get indextargets --format "$1" 'Created-By: Packages' 'Origin: Debian' "${@:2}" | sort -u; }
eval "$(apt-config shell http_proxy Acquire::http::Proxy https_proxy Acquire::https::Proxy)"
export http_proxy=${http_proxy-} https_proxy=${https_proxy-}

if [ ! -f "$bare" ]; then
    # shellcheck disable=SC2016 # apt fills these in
    mirror=$(indexes '$(REPO_URI)' "Codename: $here" 'Component: main' | sed -n 1p)
    [ -n "$mirror" ] || { echo "debian_root: no archive of Debian $here is set up on this machine" >&2; exit 1; }
    new=$(mktemp -d "$cache/new.XXXXXX")
    chmod 755 "$new"
    if ! debootstrap --variant=minbase "$codename" "$new" "$mirror" >"$cache/debootstrap.log" 2>&1; then
        tail -n 20 "$cache/debootstrap.log" >&2
        rm -rf --one-file-system "$new"
        exit 1
    fi
    # shellcheck disable=SC2016
    indexes 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Component: main' |
        sed "s/\b$here\b/$codename/" >"$new/etc/apt/sources.list"
    rm -f "$new"/var/cache/apt/archives/*.deb
    tar -C "$new" -cf "$bare.new" .
    mv "$bare.new" "$bare"
    rm -rf --one-file-system "$new"
fi

mkdir -p "$root"
tar -C "$root" -xf "$bare"
if [ -f /etc/resolv.conf ]; then cp --dereference /etc/resolv.conf "$root/etc/resolv.conf"; fi
