#!/usr/bin/env bash
# Builds the static library of the languages' orders (ICU: collation only) once with the cross compiler and prints the
# folder that holds it.
#
# The source is Debian's own source package, of the version that the native side uses, so that both desktops order names
# alike; its data are reduced to what the program's languages need. It is kept, built, in a cache folder outside the tree
# (windows-cache.sh), of its own beside that of windows-libs.sh: neither is built anew because the other has changed.
set -euo pipefail

self=$(readlink -f "${BASH_SOURCE[0]}")
source "$(dirname "$self")/windows-cache.sh"
use_cache windows-icu "$self"
if [ "${1:-}" = --where ]; then
  # Where it is or will be, without building it.
  echo "$prefix"
  exit 0
fi
begin_build

suite=bookworm
# German has no rules of its own: the root's order is its.
languages="ar ja tr zh"
mkdir -p "$prefix/include/unicode"
use_sources "$suite"
fetch icu "$suite"

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

end_build
