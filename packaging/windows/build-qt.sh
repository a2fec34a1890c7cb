#!/usr/bin/env bash
# Builds Qt's base libraries for Windows from Debian's own source package, with Debian's security fixes: Core, Gui,
# Widgets, PrintSupport, Test and the plug-ins of the platform and of its style. 15 to 30 minutes on two cores, and
# 2 GB while it lasts. FOLDER is whole once its file "complete" is there, which has the checksums of all others. The
# licences of what is inside are in it, too.
# usage: build-qt.sh FOLDER
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
folder=$(readlink -m "${1:?usage: build-qt.sh FOLDER}")
work=$folder.making
rm -rf "$folder" "$work"
mkdir -p "$work/apt/parts" "$work/apt/lists/partial"

# The source package, by a list of sources of its own, so that the machine's lists stay as they are.
for list in /etc/apt/sources.list.d/*.sources; do
    [ ! -e "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$work/apt/parts/$(basename "$list")"
done
[ ! -s /etc/apt/sources.list ] || sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$work/apt/parts/main.list"
apt=(-o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$work/apt/parts"
    -o "Dir::State::lists=$work/apt/lists" -o APT::Sandbox::User=)
apt-get "${apt[@]}" update -qq
version=$(dpkg-query -W -f '${Version}' qt6-base-dev) # the tools of this machine must be of the same version
(cd "$work" && apt-get "${apt[@]}" source -qq "qt6-base=$version")
source=$(echo "$work"/qt6-base-*/)

# Left out is what the program has no use for; tablets, because the source package lacks a header for them. The
# libraries are installed below a root of their own, so that no path of this machine is written into them. The list of
# file types is compressed by Perl, which gives it no time, as CMake would.
QUEXAL_QT_WINDOWS=$folder cmake -S "$source" -B "$work/build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$here/mingw-w64.cmake" -DCMAKE_INSTALL_PREFIX=/qt -DCMAKE_BUILD_TYPE=Release \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DWARNINGS_ARE_ERRORS=OFF -DINPUT_opengl=no \
    -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_xml=OFF -DFEATURE_dbus=OFF -DFEATURE_concurrent=OFF \
    -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF -DFEATURE_system_zlib=OFF -DFEATURE_pkg_config=OFF \
    -DFEATURE_zstd=OFF -DFEATURE_testlib=ON -DQT_AVOID_CMAKE_ARCHIVING_API=ON
cmake --build "$work/build"
DESTDIR=$work/root cmake --install "$work/build"

mv "$work/root/qt" "$folder"
mkdir "$folder/licences"
cp "$source"/LICENSES/* "$folder/licences/"
cp "$work"/qt6-base_*.dsc "$folder/licences/" # says which sources these are
(cd "$source" && find src/corelib src/gui src/3rdparty -type f \
    \( -name '*LICEN[CS]E*' -o -name COPYING -o -name qt_attribution.json \) -exec cp --parents {} "$folder/licences/" \;)
rm -rf "$work"
(cd "$folder" && find . -type f | LC_ALL=C sort | xargs -d '\n' sha256sum >"$work" && mv "$work" complete)
