# shellcheck shell=bash disable=SC2034
# What ./run, ./test and .ci/run share: saying what happens, and installing what is missing.

BUILD_PACKAGES="g++ cmake ninja-build qt6-base-dev libxxhash-dev libgl-dev fonts-dejavu-core cmark-gfm"
TEST_PACKAGES="libgtest-dev xvfb xauth xdotool openbox"
FAULT_PACKAGES="e2fsprogs mount"
PACKAGE_PACKAGES="dpkg-dev file"
ARCHIVE_PACKAGES="binutils patchelf qt6-base-dev-tools xz-utils bsdextrautils"
WINDOWS_BUILD_PACKAGES="g++-mingw-w64-x86-64-posix googletest dpkg-dev qt6-base-dev-tools nsis zip"

say() { printf '%s\n' "$*"; }
fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Runs a command quietly; when it fails, says what failed and shows the end of what it printed.
quietly() {
    local what=$1 log
    shift
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        rm -f "$log"
        fail "$what failed"
    fi
    rm -f "$log"
}

missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || printf '%s ' "$package"
    done
}

# Installs those of the named Debian packages that are missing.
need_packages() {
    local missing as_root=""
    command -v dpkg-query >/dev/null || return 0
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return 0
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "these packages are missing and there is no sudo; as root: apt-get install $missing"
        as_root=sudo
    fi
    say "Installing $missing"
    export DEBIAN_FRONTEND=noninteractive
    quietly "apt-get update" $as_root apt-get update
    # shellcheck disable=SC2086
    quietly "apt-get install" $as_root apt-get install -y --no-install-recommends $missing
}

# Configures and builds a preset.
build_preset() {
    quietly "configuring ($1)" cmake --preset "$1"
    quietly "building ($1)" cmake --build --preset "$1"
}

# Where Qt for Windows is kept: outside the tree, in a folder that is named after all that it is made of.
windows_qt_folder() {
    local key
    key=$(cat packaging/windows/build-qt.sh packaging/windows/mingw-w64.cmake - \
        <<<"$(dpkg-query -W -f '${Package} ${Version}\n' qt6-base-dev g++-mingw-w64-x86-64-posix \
            binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev)" | sha256sum)
    printf '%s' "${XDG_CACHE_HOME:-$HOME/.cache}/quexal-editor/qt-windows-${key:0:16}"
}

# Configures and builds a preset for Windows with the Qt in $QUEXAL_QT_WINDOWS; anew where it was built with another.
build_windows_preset() {
    grep -qsF "Qt6_DIR:PATH=$QUEXAL_QT_WINDOWS/" "build/$1/CMakeCache.txt" || rm -rf "build/$1"
    build_preset "$1"
}

# Whether all of it is there, byte for byte.
is_windows_qt_whole() {
    (cd "$1" 2>/dev/null && sha256sum --check --status --strict complete 2>/dev/null)
}

# The version of the newest release, and the moment of it.
release_version() { sed -n '1s/.*(\(.*\)).*/\1/p' packaging/changelog; }
release_day() { sed -n 's/^ -- .*>  //p;T;q' packaging/changelog; }
# What a system with this processor is called in the names of files.
linux_name() { uname -m | sed 's/x86_64/x64/; s/aarch64/arm64/'; }

# Packs files as of a moment, with further arguments for tar, so that neither when and by whom it is done, nor their
# rights, nor the order of a folder matter.
pack() {
    local moment=$1
    shift
    tar --sort=name --mtime="$moment" --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX --format=gnu "$@" -c |
        xz -9 -T1
}
