#!/usr/bin/env bash
# Installs what is missing of the Debian packages that a task needs: packages.sh build|test|run|windows|lint|fuzz ...
set -euo pipefail

build="cmake ninja-build g++ pkg-config ccache libwxgtk3.2-dev libgtk-3-dev libfontconfig-dev libsqlite3-dev libutf8proc-dev libpugixml-dev
  libsodium-dev libicu-dev libcups2-dev libsecret-1-dev libspdlog-dev libfmt-dev googletest libgtest-dev libgmock-dev"
# Fonts for the languages and the sample's names; a display, a window manager and a camera for machines without one.
screen="xvfb openbox x11-utils xdotool imagemagick fonts-dejavu-core fonts-droid-fallback fonts-nanum fonts-noto-core"
# The keyring is for the tests of stored passwords; the print server has a printer that writes files. The directory file
# is asked by the database's own shell.
test="$build $screen sqlite3 procps dbus-daemon gnome-keyring cups cups-client printer-driver-cups-pdf poppler-utils"
run="$build $screen"
windows="$test g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64 fonts-wqy-microhei tcl
  icu-devtools dpkg-dev autoconf automake libtool
  debian-archive-keyring ca-certificates wixl"
lint="$build clang-format clang-tidy-16 git"
# The oldest clang that reads the sources.
fuzz="$build clang-16 libclang-rt-16-dev"

wanted=
for task in "$@"; do
  case $task in
  build | test | run | windows | lint | fuzz) wanted+=" ${!task}" ;;
  *)
    echo "packages.sh: unknown task '$task'" >&2
    exit 2
    ;;
  esac
done

missing=()
for package in $(tr ' ' '\n' <<<"$wanted" | sort -u); do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
  command -v sudo >/dev/null || {
    echo "These packages are missing and need root or sudo to be installed: ${missing[*]}" >&2
    exit 1
  }
  as_root=(sudo)
fi
echo "installing: ${missing[*]}" >&2
"${as_root[@]}" apt-get -qq update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${missing[@]}" >/dev/null
