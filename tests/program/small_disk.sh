# shellcheck shell=bash
# A small disk, which goes with the test that mounts it. It needs root. To be sourced; it only defines functions:
#   with_own_mounts "$@"       starts the script anew so that what it mounts is its own; does nothing without root
#   mount_small_disk PATH 64k  mounts a disk of this size at a new folder; fails without root

with_own_mounts() {
    [ "$(id -u)" != 0 ] || [ -n "${QUEXAL_OWN_MOUNTS-}" ] || QUEXAL_OWN_MOUNTS=1 exec unshare --mount "$0" "$@"
}

mount_small_disk() {
    [ "$(id -u)" = 0 ] && mkdir "$1" && mount -t tmpfs -o "size=$2" tmpfs "$1"
}
