# shellcheck shell=bash
# What the tests in another system share: a bare Debian in $root, with the user "maintainer", which goes at the end;
# commands that run in it; an end with a message. To be sourced first, with $cache set to the folder where what was
# fetched is kept. Needs root.

umask 022
mkdir -p "$cache"
cache=$(readlink -f "$cache")
here=$(dirname "$(readlink -f "$0")")
work=$(mktemp -d "$cache/work.XXXXXX")
root=$work/root
say() { echo "$(basename "$0" .sh): $*"; }
fail() {
    say "$*" >&2
    tail -n 20 "$work/log" >&2 || true
    exit 1
}
# shellcheck disable=SC2317 # called by the trap
cleanup() {
    ! mountpoint -q "$root/proc" || umount "$root/proc"
    rm -rf --one-file-system "$work"
}
trap cleanup EXIT

# Runs a command in the other system.
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    http_proxy="${http_proxy-}" https_proxy="${https_proxy-}" "$@" </dev/null >"$work/log" 2>&1; }
installs() { inside apt-get install -y --no-install-recommends "$@" || fail "apt-get install $* failed"; }

# Unpacks the system: of this machine's release of Debian or, unless that is empty, of the one that is named.
bare_system() {
    say "unpacking a bare system"
    archives=$cache/archives${1:+-$1}
    eval "$(apt-config shell http_proxy Acquire::http::Proxy https_proxy Acquire::https::Proxy)"
    "$here/debian_root.sh" "$cache" "$root" "$1"
    mount -t proc proc "$root/proc"
    mkdir -p "$archives"
    find "$archives" -name '*.deb' -exec cp -t "$root/var/cache/apt/archives" {} +
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/quick" # it need not survive a power cut
    inside useradd -m maintainer || fail "useradd failed"
    inside apt-get update || fail "apt-get update failed"
}
keep_archives() { find "$root/var/cache/apt/archives" -name '*.deb' -exec cp -u -t "$archives" {} +; }
