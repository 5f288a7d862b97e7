#!/usr/bin/env bash
# Builds the static library of the languages' orders (ICU: collation only) once with the cross compiler and prints the
# folder that holds it.
#
# The source is Debian's own source package, of the version that the native side uses, so that both desktops order names
# alike; its data are reduced to what the program's languages need. It is kept, built, in a cache folder outside the tree
# whose name holds a key made of this script's content. A cache of its own beside that of windows-libs.sh: neither
# is built anew because the other has changed.
set -euo pipefail

self=$(readlink -f "${BASH_SOURCE[0]}")
key=$(sha256sum "$self" | cut -c1-12)
root=${MINDLOFT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mindloft}
prefix=$root/windows-icu-$key
if [ "${1:-}" = --where ]; then
  # Where it is or will be, without building it.
  echo "$prefix"
  exit 0
fi
if [ -e "$prefix/.complete" ]; then
  echo "$prefix"
  exit 0
fi

mkdir -p "$root"
exec 9>"$root/windows-icu-$key.lock"
flock 9
if [ -e "$prefix/.complete" ]; then
  echo "$prefix"
  exit 0
fi
exec 3>&1 >&2

suite=bookworm
# German has no rules of its own: the root's order is its.
languages="ar ja tr zh"
work=$root/build-icu-$key
rm -rf "$prefix" "$work"
mkdir -p "$work" "$prefix"/{lib,include/unicode}

# A private package configuration with a source entry, made from the machine's own Debian entries.
apt_private=$work/apt
mkdir -p "$apt_private"/{lists/partial,cache/archives/partial}
debian_uri() {
  awk '/^URIs:/ && $2 !~ /security/ && $2 ~ /debian/ { print $2; exit }' /etc/apt/sources.list.d/*.sources 2>/dev/null |
    grep . || awk '$1 == "deb" { for (i = 2; i <= NF; i++) if ($i ~ /^[a-z+]+:/) { if ($i !~ /security/) { print $i; exit } break } }' \
    /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null
}
uri=$(debian_uri)
[ -n "$uri" ] || { echo "no Debian package source is configured on this machine" >&2; exit 1; }
echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $uri $suite main" >"$apt_private/sources.list"
apt_opts=(-o "Dir::Etc::SourceList=$apt_private/sources.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$apt_private/lists" -o "Dir::Cache=$apt_private/cache" -o APT::Sandbox::User=root
  -o Acquire::Retries=3)
apt-get "${apt_opts[@]}" update -qq
(cd "$work" && apt-get "${apt_opts[@]}" source -qq --download-only "icu/$suite" && dpkg-source -x ./*.dsc "$work/icu")

host=x86_64-w64-mingw32
source=$work/icu/source
# Every part that collation does without is left out; what remains of it the linker does not take.
flags=(-O2 -std=c++17 -ffunction-sections -fdata-sections -w -DNDEBUG -DU_STATIC_IMPLEMENTATION -DU_CHARSET_IS_UTF8=1
  -DU_HAVE_ELF_H=0 -DUCONFIG_NO_BREAK_ITERATION=1 -DUCONFIG_NO_FORMATTING=1 -DUCONFIG_NO_TRANSLITERATION=1
  -DUCONFIG_NO_REGULAR_EXPRESSIONS=1 -DUCONFIG_NO_LEGACY_CONVERSION=1 -DUCONFIG_NO_IDNA=1 -DUCONFIG_NO_SERVICE=1
  -DUCONFIG_NO_FILE_IO=1 -I"$source/common" -I"$source/i18n")
objects=$work/objects
mkdir -p "$objects"
compile() {
  local part=$1 implementation=$2
  find "$source/$part" -maxdepth 1 -name '*.cpp' -print0 | xargs -0 -P "$(nproc)" -I{} sh -c '
    file=$1 objects=$2 part=$3 && shift 3 && "$@" -c "$file" -o "$objects/$part-$(basename "$file" .cpp).o"' \
    compile {} "$objects" "$part" "$host-g++-posix" "${flags[@]}" "-D$implementation"
  $host-ar rcs "$prefix/lib/libicu-$part.a" "$objects/$part"-*.o
}
compile common U_COMMON_IMPLEMENTATION
compile i18n U_I18N_IMPLEMENTATION

# The data: the root's order, those of the languages, and what the library needs to find them.
archive=$(find "$source/data/in" -name 'icudt*l.dat')
name=$(basename "$archive" l.dat)
# The tool takes a list for one by its extension.
items=$work/items.txt
{
  printf 'coll/%s\n' ucadata.icu root.res res_index.res pool.res
  printf 'coll/%s.res\n' $languages
  printf '%s\n' root.res pool.res
} >"$work/wanted"
icupkg -l "$archive" | grep -Fxf "$work/wanted" >"$items"
mkdir -p "$work/data"
icupkg -d "$work/data" -x "$items" "$archive"
icupkg -s "$work/data" -a "$items" new "$work/${name}l.dat"
cat >"$work/data.s" <<END
  .section .rdata,"dr"
  .globl ${name}_dat
  .balign 16
${name}_dat:
  .incbin "$work/${name}l.dat"
END
$host-gcc-posix -c "$work/data.s" -o "$work/data.o"
$host-ar rcs "$prefix/lib/libicu-data.a" "$work/data.o"
cp "$source/common/unicode"/*.h "$source/i18n/unicode"/*.h "$prefix/include/unicode/"

touch "$prefix/.complete"
rm -rf "$work"
echo "$prefix" >&3
