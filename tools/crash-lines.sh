#!/usr/bin/env bash
# Passes the output of test programs on and puts the source line behind each address at which one crashed.
set -euo pipefail

# The address at which the linker placed a file.
image_base() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^ImageBase[[:space:]]*/0x/p'; }

while IFS= read -r line || [ -n "$line" ]; do
  printf '%s\n' "$line"
  if [[ $line =~ crash:\ exception\ .*\((.*)\ \+\ (0x[0-9a-f]+)\) ]]; then
    file=${BASH_REMATCH[1]//\\//}
    offset=${BASH_REMATCH[2]}
    file=${file#[A-Z]:}
    if [ -f "$file" ]; then
      printf 'crash: %s\n' "$(x86_64-w64-mingw32-addr2line -fCipe "$file" "$(printf '0x%x' $(($(image_base "$file") + offset)))")"
    fi
  fi
done
