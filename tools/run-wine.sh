#!/usr/bin/env bash
# Runs a Windows program of the build under Wine, without a display: run-wine.sh PROGRAM.exe [ARGUMENT...]
# KZ_TEST_DPI chooses a resolution (96 unless set), KZ_TEST_LOCALE a user locale such as es_ES. A program in tests/ finds
# the product's DLLs in bin/ beside it. With KZ_TEST_FOLLOW the output comes while the program runs, and ends a second after it.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
program=$(realpath "$1")
shift
wine_use "${KZ_TEST_DPI:-96}"
# Never the user's own locale, which would change numbers and messages.
export LC_ALL=C.UTF-8
if [ -n "${KZ_TEST_LOCALE:-}" ]; then wine_locale "$KZ_TEST_LOCALE"; fi
bin=$(dirname "$(dirname "$program")")/bin
WINEPATH=$(wine_path "$bin")
export WINEPATH
if [ -n "${KZ_TEST_FOLDER:-}" ]; then KZ_TEST_FOLDER=$(wine_path "$KZ_TEST_FOLDER"); fi
wine_serve
# The processes that Wine starts beside the program inherit its output and outlive it, so whoever reads that output through a
# pipe would wait for them: a file lies between.
output=$(mktemp)
trap 'rm -f "$output"' EXIT
status=0
run=(timeout --kill-after=5 "${KZ_TEST_TIMEOUT:-600}" "${wine_pin[@]}" wine "$program" "$@")
if [ -n "${KZ_TEST_FOLLOW:-}" ]; then
  "${run[@]}" < /dev/null > "$output" 2>&1 &
  tail --lines=+1 --follow --pid=$! "$output"
  wait $! || status=$?
else
  "${run[@]}" < /dev/null > "$output" 2>&1 || status=$?
  cat "$output"
fi
if [ "$status" = 124 ]; then echo "run-wine.sh: $program ran longer than ${KZ_TEST_TIMEOUT:-600} s" >&2; fi
exit "$status"
