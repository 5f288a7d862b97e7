# shellcheck shell=bash
# Sourced by the scripts that build Windows libraries once: the cache folder outside the tree that holds what is built,
# and the Debian source packages that it is built from. Nothing in the machine's package configuration is changed.

# use_cache NAME FILE...: sets `prefix` to the folder of NAME whose key is made of the FILEs' and this file's content, so that a change
# of a version or an option builds anew and leaves the old cache whole.
use_cache() {
  local name=$1
  shift
  cache_root=${MINDLOFT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mindloft}
  cache_key=$name-$(cat "$@" "${BASH_SOURCE[0]}" | sha256sum | cut -c1-12)
  prefix=$cache_root/$cache_key
}

print_if_complete() {
  [ -e "$prefix/.complete" ] || return 0
  echo "$prefix"
  exit 0
}

# begin_build: prints the folder and ends the script if it is complete, after waiting for another process that builds it; else
# makes it anew, empty, with the folder `work` for what is only needed on the way. From here on only messages are
# written, to standard error.
begin_build() {
  print_if_complete
  mkdir -p "$cache_root"
  exec 9>"$prefix.lock"
  flock 9
  print_if_complete
  exec 3>&1 >&2
  work=$cache_root/build-$cache_key
  rm -rf "$prefix" "$work"
  mkdir -p "$work" "$prefix"/{lib,include}
}

# end_build: what was built is whole.
end_build() {
  touch "$prefix/.complete"
  rm -rf "$work"
  echo "$prefix" >&3
}

debian_uri() {
  awk '/^URIs:/ && $2 !~ /security/ && $2 ~ /debian/ { print $2; exit }' /etc/apt/sources.list.d/*.sources 2>/dev/null |
    grep . || awk '$1 == "deb" { for (i = 2; i <= NF; i++) if ($i ~ /^[a-z+]+:/) { if ($i !~ /security/) { print $i; exit } break } }' \
    /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null
}

# use_sources SUITE...: a private package configuration with source entries, made from the machine's own Debian entries.
use_sources() {
  local uri suite apt_private=$work/apt keyring=/usr/share/keyrings/debian-archive-keyring.gpg
  mkdir -p "$apt_private"/{lists/partial,cache/archives/partial}
  uri=$(debian_uri)
  [ -n "$uri" ] || { echo "no Debian package source is configured on this machine" >&2; exit 1; }
  for suite in "$@"; do
    echo "deb-src [signed-by=$keyring] $uri $suite main"
  done >"$apt_private/sources.list"
  apt_opts=(-o "Dir::Etc::SourceList=$apt_private/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o "Dir::State::Lists=$apt_private/lists" -o "Dir::Cache=$apt_private/cache" -o APT::Sandbox::User=root
    -o Acquire::Retries=3)
  apt-get "${apt_opts[@]}" update -qq
}

# fetch PACKAGE SUITE: unpacks the source package into $work/PACKAGE.
fetch() {
  mkdir -p "$work/dl-$1"
  (cd "$work/dl-$1" && apt-get "${apt_opts[@]}" source -qq --download-only "$1/$2" && dpkg-source -x ./*.dsc "$work/$1")
}
