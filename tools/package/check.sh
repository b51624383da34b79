#!/usr/bin/env bash
# Builds the commit twice, in two folders and without a cache, and compares; then looks at the packages and walks the
# installer's roads: check.sh FOLDER
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
folder=$(realpath -m "$1")
fail() { echo "check.sh: $*" >&2; exit 1; }

# build NAME: a clone in a folder of its own, up to its packages
build() {
  local tree=$folder/$1 log=$folder/$1.log
  echo "Building in $1"
  git clone --quiet "$root" "$tree"
  mkdir "$tree/build"
  cp -r "$root/build/deps" "$tree/build/"
  (
    unset CMAKE_C_COMPILER_LAUNCHER CMAKE_CXX_COMPILER_LAUNCHER
    cd "$tree"
    cmake --preset windows && ninja -C build/windows product && tools/package/make.sh build/windows build/packages
  ) > "$log" 2>&1 || { tail -30 "$log" >&2; fail "the build in $1 failed"; }
}

rm -rf "$folder"
mkdir -p "$folder"
# Names of different lengths, so that a path which got into a file shows.
one=first
two=the-second-one
build "$one"
build "$two"
for what in windows/bin windows/symbols packages; do
  diff -r "$folder/$one/build/$what" "$folder/$two/build/$what" || fail "two builds of one commit differ in $what"
done
echo 'The two builds are the same'

packages=$folder/$one/build/packages
bin=$folder/$one/build/windows/bin
mkdir "$folder/zip"
unzip -q "$packages"/KZEditor-*-win64.zip -d "$folder/zip"
"$root/tools/check-consistency.py" materials "$folder/zip" || fail 'the bill of materials is not what the ZIP holds'
"$root/tools/check-consistency.py" hardening "$folder/zip" || fail 'what ships is not hardened'
"$root/tools/package/signing.sh" "$packages"/*.exe "$folder/zip/KZEditor.exe"

# A later version: one file fewer, one more.
cp -r "$bin" "$folder/later"
rm "$folder/later/images/ZEP-50.png"
echo new > "$folder/later/new.txt"
"$root/tools/package/make.sh" "$folder/$one/build/windows" "$folder/next" -D CPACK_PACKAGE_VERSION=99.0.0 \
  -D CPACK_PACKAGE_FILE_NAME=KZEditor-99.0.0-win64 -D "CPACK_INSTALLED_DIRECTORIES=$folder/later;/"
"$root/tools/package/roads.sh" "$packages" "$folder/next" "$folder/wine"
