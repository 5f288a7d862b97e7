#!/usr/bin/env bash
# Builds the static Windows libraries once with the cross compiler and prints the folder that holds them.
#
# The sources are Debian's own source packages. They are kept, built, in a cache folder outside the tree (windows-cache.sh).
set -euo pipefail

self=$(readlink -f "${BASH_SOURCE[0]}")
toolchain=$(dirname "$self")/../cmake/mingw-w64-x86_64.cmake
source "$(dirname "$self")/windows-cache.sh"
use_cache windows "$self" "$toolchain"
begin_build

# wxWidgets comes from the next stable Debian: it carries many fixes for Windows over this one's.
wx_suite=trixie
use_sources bookworm "$wx_suite"

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
$host-ar rcs "$prefix/lib/libsqlite3.a" "$work/sqlite3.o"
cp "$work/sqlite3/sqlite3.h" "$prefix/include/"

fetch utf8proc bookworm
$host-gcc-posix -O2 -DUTF8PROC_STATIC -c "$work/utf8proc/utf8proc.c" -o "$work/utf8proc.o"
$host-ar rcs "$prefix/lib/libutf8proc.a" "$work/utf8proc.o"
cp "$work/utf8proc/utf8proc.h" "$prefix/include/"

fetch libsodium bookworm
# The stack protector and the checked functions of the C library would need libraries of the compiler's own.
(cd "$work/libsodium" && autoreconf -fi 2>/dev/null
  ./configure --quiet --host=$host CC=$host-gcc-posix CFLAGS=-O3 CPPFLAGS=-D_FORTIFY_SOURCE=0 --prefix="$prefix" \
    --disable-shared --disable-ssp --disable-dependency-tracking >/dev/null
  make -s -j "$jobs" -C src/libsodium install >/dev/null)

# Header-only use: the native packages' headers serve both sides.
cp -r /usr/include/spdlog /usr/include/fmt "$prefix/include/"

fetch wxwidgets3.2 "$wx_suite"
configure wxwidgets3.2 -DwxBUILD_SHARED=OFF -DwxBUILD_USE_STATIC_RUNTIME=ON -DwxBUILD_PRECOMP=OFF -DwxUSE_LIBJPEG=OFF \
  -DwxUSE_LIBTIFF=OFF -DwxUSE_LIBPNG=sys -DwxUSE_ZLIB=sys -DwxUSE_EXPAT=sys -DwxUSE_REGEX=OFF -DwxUSE_MEDIACTRL=OFF \
  -DwxUSE_WEBVIEW=OFF -DwxUSE_STC=OFF -DwxUSE_RIBBON=OFF -DwxUSE_PROPGRID=OFF -DwxUSE_AUI=OFF -DwxUSE_OPENGL=OFF \
  -DwxUSE_WEBREQUEST=OFF -DwxUSE_NANOSVG=builtin -DCMAKE_CXX_STANDARD=17

end_build
