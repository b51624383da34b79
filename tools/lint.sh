#!/usr/bin/env bash
# What the linters that need no build say of the whole tree: lint.sh format|shell|python...
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# sources PATTERN...: the files of these names
sources() {
  local pattern names=()
  for pattern; do names+=(-o -name "$pattern"); done
  find . \( -path ./build -o -path ./.git \) -prune -o -type f \( "${names[@]:1}" \) -print | sort
}

for what; do
  case $what in
    format) sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror ;;
    shell) { echo dev .ci/run; sources '*.sh'; } | xargs shellcheck ;;
    python) sources '*.py' | xargs pyflakes3 ;;
    *) echo "lint.sh knows format, shell and python, not \"$what\"" >&2; exit 2 ;;
  esac
done
