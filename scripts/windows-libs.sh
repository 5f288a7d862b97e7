#!/usr/bin/env bash
# Builds the static Windows libraries once with the cross compiler and prints the folder that holds them.
#
# The sources are Debian's own source packages. They are kept, built, in a cache folder outside the tree whose
# name holds a key made of this script's content, so a change of a version or an option builds anew and
# leaves the old cache whole. Nothing in the machine's package configuration is changed.
set -euo pipefail

self=$(readlink -f "${BASH_SOURCE[0]}")
toolchain=$(dirname "$self")/../cmake/mingw-w64-x86_64.cmake
key=$(cat "$self" "$toolchain" | sha256sum | cut -c1-12)
root=${MINDLOFT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mindloft}
prefix=$root/windows-$key
if [ -e "$prefix/.complete" ]; then
  echo "$prefix"
  exit 0
fi

mkdir -p "$root"
exec 9>"$root/windows-$key.lock"
flock 9
if [ -e "$prefix/.complete" ]; then
  echo "$prefix"
  exit 0
fi
exec 3>&1 >&2

# wxWidgets comes from the next stable Debian: it carries many fixes for Windows over this one's.
wx_suite=trixie
work=$root/build-$key
rm -rf "$prefix" "$work"
mkdir -p "$work" "$prefix"

# A private package configuration with source entries, made from the machine's own Debian entries.
apt_private=$work/apt
mkdir -p "$apt_private"/{lists/partial,cache/archives/partial}
debian_uri() {
  awk '/^URIs:/ && $2 !~ /security/ && $2 ~ /debian/ { print $2; exit }' /etc/apt/sources.list.d/*.sources 2>/dev/null |
    grep . || awk '$1 == "deb" { for (i = 2; i <= NF; i++) if ($i ~ /^[a-z+]+:/) { if ($i !~ /security/) { print $i; exit } break } }' \
    /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null
}
uri=$(debian_uri)
[ -n "$uri" ] || { echo "no Debian package source is configured on this machine" >&2; exit 1; }
keyring=/usr/share/keyrings/debian-archive-keyring.gpg
for suite in bookworm "$wx_suite"; do
  echo "deb-src [signed-by=$keyring] $uri $suite main"
done >"$apt_private/sources.list"
apt_opts=(-o "Dir::Etc::SourceList=$apt_private/sources.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$apt_private/lists" -o "Dir::Cache=$apt_private/cache" -o APT::Sandbox::User=root
  -o Acquire::Retries=3)
apt-get "${apt_opts[@]}" update -qq

# fetch PACKAGE SUITE: unpacks the source package into $work/PACKAGE.
fetch() {
  mkdir -p "$work/dl-$1"
  (cd "$work/dl-$1" && apt-get "${apt_opts[@]}" source -qq --download-only "$1/$2" && dpkg-source -x ./*.dsc "$work/$1")
}

host=x86_64-w64-mingw32
jobs=$(nproc)
configure() {
  local name=$1
  shift
  cmake -G Ninja -S "$work/$name" -B "$work/$name-build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DMINDLOFT_WINDOWS_LIBS="$prefix" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF "$@"
  cmake --build "$work/$name-build" -j "$jobs"
  cmake --install "$work/$name-build" >/dev/null
}

fetch expat bookworm
[ -d "$work/expat/expat" ] && mv "$work/expat" "$work/expat-all" && mv "$work/expat-all/expat" "$work/expat"
configure expat -DCMAKE_C_FLAGS=-DXML_DTD=1 -DEXPAT_DTD=OFF -DEXPAT_BUILD_TOOLS=OFF -DEXPAT_BUILD_EXAMPLES=OFF \
  -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_DOCS=OFF -DEXPAT_SHARED_LIBS=OFF

fetch libpng1.6 bookworm
configure libpng1.6 -DPNG_SHARED=OFF -DPNG_TESTS=OFF -DPNG_EXECUTABLES=OFF

fetch pugixml bookworm
configure pugixml

configure_googletest() {
  cmake -G Ninja -S /usr/src/googletest -B "$work/googletest-build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DMINDLOFT_WINDOWS_LIBS="$prefix" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix"
  cmake --build "$work/googletest-build" -j "$jobs"
  cmake --install "$work/googletest-build" >/dev/null
}
configure_googletest

fetch sqlite3 bookworm
(cd "$work/sqlite3" && ./configure >/dev/null && make -s sqlite3.c >/dev/null)
# The same options that the Debian library is used with; full-text search and loadable extensions are not needed.
$host-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION -DSQLITE_DQS=0 -DSQLITE_ENABLE_DBSTAT_VTAB \
  -c "$work/sqlite3/sqlite3.c" -o "$work/sqlite3.o"
mkdir -p "$prefix/lib" "$prefix/include"
$host-ar rcs "$prefix/lib/libsqlite3.a" "$work/sqlite3.o"
cp "$work/sqlite3/sqlite3.h" "$prefix/include/"

fetch utf8proc bookworm
$host-gcc-posix -O2 -DUTF8PROC_STATIC -c "$work/utf8proc/utf8proc.c" -o "$work/utf8proc.o"
$host-ar rcs "$prefix/lib/libutf8proc.a" "$work/utf8proc.o"
cp "$work/utf8proc/utf8proc.h" "$prefix/include/"

# Header-only use: the native packages' headers serve both sides.
cp -r /usr/include/spdlog /usr/include/fmt "$prefix/include/"

fetch wxwidgets3.2 "$wx_suite"
configure wxwidgets3.2 -DwxBUILD_SHARED=OFF -DwxBUILD_USE_STATIC_RUNTIME=ON -DwxBUILD_PRECOMP=OFF -DwxUSE_LIBJPEG=OFF \
  -DwxUSE_LIBTIFF=OFF -DwxUSE_LIBPNG=sys -DwxUSE_ZLIB=sys -DwxUSE_EXPAT=sys -DwxUSE_REGEX=OFF -DwxUSE_MEDIACTRL=OFF \
  -DwxUSE_WEBVIEW=OFF -DwxUSE_STC=OFF -DwxUSE_RIBBON=OFF -DwxUSE_PROPGRID=OFF -DwxUSE_AUI=OFF -DwxUSE_OPENGL=OFF \
  -DwxUSE_WEBREQUEST=OFF -DwxUSE_NANOSVG=builtin -DCMAKE_CXX_STANDARD=17

touch "$prefix/.complete"
rm -rf "$work"
echo "$prefix" >&3
