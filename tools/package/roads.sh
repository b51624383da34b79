#!/usr/bin/env bash
# Walks the installer's roads under Wine and looks at files and registry: roads.sh PACKAGES NEXT PREFIX
# NEXT holds the packages of a later version, which lacks a file and has a new one. PREFIX is where the Wine prefix goes.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$root/tools/wine-env.sh"
packages=$(realpath "$1")
next=$(realpath "$2")
wine_base=$(realpath -m "$3")
wine_use 96
prefix=$wine_base-96
wine_serve
work=$(mktemp -d)
trap 'wine_stop; rm -rf "$work"' EXIT
installer=$(echo "$packages"/*.exe)
later=$(echo "$next"/*.exe)
local_data=$(echo "$prefix"/drive_c/users/*/AppData/Local)
menu='Microsoft/Windows/Start Menu/Programs/KZEditor.lnk'
roaming=$(echo "$prefix"/drive_c/users/*/AppData/Roaming)
user_menu=$roaming/$menu
mine=$local_data/Programs/KZEditor
everyones=$prefix/drive_c/"Program Files"/KZEditor
uninstall='Software\Microsoft\Windows\CurrentVersion\Uninstall\KZEditor'
folder='Software\Classes\Directory\shell\KZEditor'

fail() { echo "roads.sh: $*" >&2; exit 1; }
# A program that hangs ends with 124, and its road fails.
run() { timeout --kill-after=5 300 "${wine_pin[@]}" wine "$@" < /dev/null > /dev/null 2>&1; }
# status COMMAND...: its exit status
status() { local result=0; "$@" || result=$?; echo "$result"; }
# value KEY NAME: what the registry holds
value() { "${wine_pin[@]}" wine reg query "$1" /v "$2" 2> /dev/null | tr -d '\r' | sed -n "s/^ *$2 *REG_[A-Z]* *//p"; }
# has KEY: whether the registry has it
has() { run reg query "$1"; }
environment() { "${wine_pin[@]}" wine reg query 'HKCU\Environment' 2> /dev/null; "${wine_pin[@]}" wine reg query 'HKLM\System\CurrentControlSet\Control\Session Manager\Environment'; }
# gone PATH: waits, since an uninstaller goes on as a copy of itself
gone() {
  local tries
  for ((tries = 0; tries < 200; tries++)); do
    [ -e "$1" ] || return 0
    sleep 0.1
  done
  fail "$1 is still there"
}
# same FOLDER: it holds what the ZIP holds, and the uninstaller
same() {
  diff -r --exclude=Uninstall.exe "$work/zip" "$1" > "$work/difference" || { cat "$work/difference" >&2; fail "$1 is not what the ZIP holds"; }
  [ -f "$1/Uninstall.exe" ] || fail "$1 has no uninstaller"
}
# registered ROOT FOLDER VERSION
registered() {
  local windows
  windows=$("${wine_pin[@]}" wine winepath -w "$2" 2> /dev/null | tr -d '\r')
  [ "$(value "$1\\$uninstall" DisplayVersion)" = "$3" ] || fail "the version in the registry is not $3"
  [ "$(value "$1\\$uninstall" InstallLocation)" = "$windows" ] || fail "the folder in the registry is not $windows"
  "${wine_pin[@]}" wine reg query "$1\\$folder\\command" /ve 2> /dev/null | grep -qF "\"$windows\\KZEditor.exe\" --project \"%1\"" ||
    fail 'folders cannot be opened with the editor'
}
# nothing_left ROOT FOLDER SHORTCUT
nothing_left() {
  if has "$1\\$uninstall" || has "$1\\$folder"; then fail "keys are left in $1"; fi
  [ ! -e "$3" ] || fail 'the shortcut is left'
  [ ! -e "$2" ] || fail "files are left: $(find "$2")"
}

mkdir "$work/zip"
unzip -q "$packages"/KZEditor-*-win64.zip -d "$work/zip"
python3 -B - "$installer" << 'END' || fail 'the installer is no 64-bit program: under a 64-bit Windows without 32-bit parts it would do nothing'
import struct, sys
data = open(sys.argv[1], "rb").read()
pe, = struct.unpack_from("<I", data, 0x3C)
sys.exit(struct.unpack_from("<H", data, pe + 24)[0] != 0x20B)
END
environment > "$work/environment"
version=$("${wine_pin[@]}" wine "$work/zip/KZEditor.exe" diagnose 2> /dev/null | tr -d '\r' | sed -n 's/^file\tKZEditor.exe\t\(.*\)\.0\t-$/\1/p')
[ -n "$version" ] || fail 'what the ZIP holds does not run'

echo 'for the user alone'
[ "$(status run "$installer" /S)" = 0 ] || fail 'the installation failed'
same "$mine"
registered HKCU "$mine" "$version"
if has "HKLM\\$uninstall"; then fail 'it was registered for all users'; fi
[ -f "$user_menu" ] || fail 'the start menu has no entry'
[ "$(status run "$mine/KZEditor.exe" diagnose)" = 0 ] || fail 'the installed editor finds something wrong'
environment | cmp -s - "$work/environment" || fail 'the environment was changed'
size=$(du --apparent-size -sk "$mine" | cut -f 1)
[ "$size" -le 8192 ] || fail "$size KB are installed, more than 8 MB"

echo 'again, as a repair'
rm "$mine/KZHost.dll"
echo damaged > "$mine/images/OK-16.png"
[ "$(status run "$installer" /S)" = 0 ] || fail 'the repair failed'
same "$mine"

echo 'while the editor runs'
cp -r "$root/examples/plant" "$work/plant"
"${wine_pin[@]}" wine "$mine/KZEditor.exe" --project "$(wine_path "$work/plant")" < /dev/null > /dev/null 2>&1 &
editor=$!
for ((tries = 0; tries < 200; tries++)); do
  if grep -qsF "$mine/KZEditor.exe" "/proc/$editor/maps"; then break; fi
  sleep 0.1
done
[ "$(status run "$later" /S)" = 32 ] || fail 'it was installed over a running editor'
same "$mine"
registered HKCU "$mine" "$version"
kill "$editor" 2> /dev/null || true
wait "$editor" 2> /dev/null || true
wine_stop
wine_serve

echo 'a later version'
cp -r "$root/examples/plant" "$mine/plant"
echo mine > "$mine/images/mine.txt"
mkdir -p "$local_data/KZEditor/crash"
mkdir -p "$roaming/KZEditor"
echo settings > "$roaming/KZEditor/settings.xml"
echo report > "$local_data/KZEditor/crash/2026-01-01 10-00-00 1.txt"
[ "$(status run "$later" /S)" = 0 ] || fail 'the upgrade failed'
registered HKCU "$mine" 99.0.0
[ -f "$mine/new.txt" ] || fail 'the new file is missing'
[ ! -e "$mine/images/ZEP-50.png" ] || fail 'the file that the later version lacks is still there'
[ -f "$local_data/KZEditor/crash/2026-01-01 10-00-00 1.txt" ] || fail 'the upgrade took a crash report away'
[ -f "$roaming/KZEditor/settings.xml" ] || fail 'the upgrade took the settings away'

echo 'taken away'
[ "$(status run "$mine/Uninstall.exe" /S)" = 0 ] || fail 'the uninstaller failed'
gone "$mine/Uninstall.exe"
gone "$local_data/KZEditor"
gone "$roaming/KZEditor"
diff -r "$root/examples/plant" "$mine/plant" || fail 'a project was touched'
[ "$(cd "$mine" && find . -type f ! -path './plant/*')" = ./images/mine.txt ] || fail "something else than the user's own is left"
rm -r "$mine"
nothing_left HKCU "$mine" "$user_menu"

echo 'for all users'
[ "$(status run "$installer" /S /AllUsers)" = 0 ] || fail 'the installation failed'
same "$everyones"
registered HKLM "$everyones" "$version"
if has "HKCU\\$uninstall"; then fail 'it was registered for the user too'; fi
[ -f "$prefix/drive_c/ProgramData/$menu" ] || fail 'the start menu has no entry for all'
[ "$(status run "$everyones/Uninstall.exe" /S)" = 0 ] || fail 'the uninstaller failed'
gone "$everyones"
nothing_left HKLM "$everyones" "$prefix/drive_c/ProgramData/$menu"

echo 'in a folder of its own, then elsewhere'
own="$prefix/drive_c/Own"
[ "$(status run "$installer" /S '/D=C:\Own')" = 0 ] || fail 'the installation failed'
same "$own"
registered HKCU "$own" "$version"
[ "$(status run "$later" /S)" = 0 ] || fail 'the upgrade failed'
registered HKCU "$own" 99.0.0
[ ! -e "$mine" ] || fail 'the upgrade has not gone where the editor is'
[ "$(status run "$installer" /S '/D=C:\Other')" = 0 ] || fail 'the move failed'
same "$prefix/drive_c/Other"
[ ! -e "$own" ] || fail 'the old folder is left'
[ "$(status run "$prefix/drive_c/Other/Uninstall.exe" /S)" = 0 ] || fail 'the uninstaller failed'
gone "$prefix/drive_c/Other"
nothing_left HKCU "$prefix/drive_c/Other" "$user_menu"

echo 'where a file cannot be written'
mkdir -p "$prefix/drive_c/Blocked/KZHost.dll/something"
[ "$(status run "$installer" /S '/D=C:\Blocked')" = 2 ] || fail 'an installation that failed has not said so'
nothing_left HKCU "$mine" "$user_menu"
environment | cmp -s - "$work/environment" || fail 'the environment was changed'
