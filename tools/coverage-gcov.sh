#!/usr/bin/env bash
# The gcov that gcovr calls; KZ_GCOV is the real one.
# A source is compiled into several programs, and gcov tells the branches that the compiler added for exceptions only where
# the code ran: where it did not, they would count as the source's own. What runs nowhere is missed as a line anyway.
set -euo pipefail
output=$("$KZ_GCOV" "$@")
printf '%s\n' "$output"
sed -n "s/^Creating '\(.*\)'$/\1/p" <<< "$output" | tr '\n' '\0' | xargs -0 -r sed -i '/^branch .* never executed/d'
