#!/usr/bin/env bash
# Makes the packages of a release build: make.sh BUILD OUT [CPACK_OPTION...]
# BUILD is a build folder whose product is built. OUT gets the ZIP, the installer, the symbols and SHA256SUMS; the times in them
# are the commit's.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$(realpath "$1")
out=$(realpath -m "$2")
shift 2
SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct)
export SOURCE_DATE_EPOCH
rm -rf "$out"
mkdir -p "$out"
umask 022
cpack --config "$build/CPackConfig.cmake" -B "$out" "$@" > "$out/cpack.log" 2>&1 || { cat "$out/cpack.log" >&2; exit 1; }
rm -rf "$out/_CPack_Packages" "$out/cpack.log" "$out"/*.json
mkdir "$out/symbols"
for file in "$build"/bin/*; do
  if [ -f "$build/symbols/${file##*/}.debug" ]; then cp "$build/symbols/${file##*/}.debug" "$out/symbols"; fi
done
"$root/tools/package/archive.py" "$out/symbols" "$out/KZEditor-symbols.zip"
rm -r "$out/symbols"
"$root/tools/package/checksum.py" "$out"/*.exe
cd "$out"
sha256sum -- *.zip *.exe > SHA256SUMS
