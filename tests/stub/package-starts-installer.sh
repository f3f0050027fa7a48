#!/usr/bin/env bash
# A package made as the 7-Zip route makes it (the private 7-Zip called through ovcmd, then stub and
# archive joined) runs under wine: it must start the root install.exe, and only that, in a
# temporary folder holding every packed file intact, with the package's own arguments, and remove
# that folder afterwards. A root cleanup.bat and setup.exe are packed as well: the stock stub would
# start either of them instead of the installer.
#
#   package-starts-installer.sh BIN_FOLDER WORK_FOLDER
set -euo pipefail
bin=$(realpath "$1")
work=$2
mkdir -p "$work"
work=$(realpath "$work")

failures=0
fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

run="$work/run"
rm -rf "$run"
project="$run/project"
mkdir -p "$project/files/sub folder" "$run/compiled" "$run/machine"

# The project: the stand-in installer, and files that differ in size and contents. setup.exe is
# the stand-in uninstaller, whose report would name it, and cleanup.bat leaves a mark.
cp "$bin/data/install" "$project/install.exe"
cp "$bin/data/uninstall" "$project/setup.exe"
mark="$run/cleanup-ran.txt"
printf 'echo ran> %s\r\n' "$(windows_path "$mark")" >"$project/cleanup.bat"
head -c 70001 /dev/urandom >"$project/files/app.dat"
printf 'level one' >"$project/files/sub folder/map.txt"
: >"$project/files/empty.cfg"

# Pack as the generated batch files do, one archiver call a line, then join.
archive="$run/compiled/package.7z"
batch="$run/packager.bat"
for entry in install.exe setup.exe cleanup.bat files; do
    printf '"%s" a -t7z "%s" "%s"\r\n' "$(windows_path "$bin/7z/7z.exe")" "$(windows_path "$archive")" \
        "$(windows_path "$project/$entry")"
done >"$batch"
ORVANTA_DATA_FOLDER="$run/machine" "$bin/ovcmd" "$batch" >"$run/packager.log" 2>&1 ||
    fail "the packing batch file failed: $(cat "$run/packager.log")"
[ -f "$archive" ] || { echo "FAIL: no archive was made; see $run/packager.log" >&2; exit 1; }
package="$run/compiled/package.exe"
cat "$bin/data/package2" "$archive" >"$package"

export WINEPREFIX="$work/wineprefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
if [ ! -f "$WINEPREFIX/system.reg" ]; then
    wineboot --init >/dev/null 2>&1 || true
    timeout 60 wineserver --wait || true
fi
report="$run/report.txt"
status=0
(cd "$run" && ORVANTA_STANDIN_REPORT="$(windows_path "$report")" timeout 120 wine "$package" first "second arg") \
    >"$run/wine.log" 2>&1 || status=$?
timeout 60 wineserver --wait || true
[ "$status" -eq 0 ] || fail "the package exited with $status"
[ ! -e "$mark" ] || fail "cleanup.bat ran"
[ -f "$report" ] || { echo "FAIL: install.exe wrote no report; see $run/wine.log" >&2; exit 1; }

mapfile -t lines <"$report"
[ "${lines[0]}" = "Orvanta stand-in installer" ] || fail "not install.exe ran but: ${lines[0]}"
arguments=$(grep '^argument ' "$report" || true)
[ "$arguments" = $'argument first\nargument second arg' ] || fail "arguments: $arguments"

# Every packed file, with its size and CRC-32 (read from the gzip trailer), sorted by path.
expected=$(cd "$project" && find . -type f | sed 's|^\./||' | while read -r path; do
    crc=$(gzip -c <"$path" | tail -c 8 | od -An -N4 -tx4 | tr -d ' ')
    printf 'file %s %s %s\n' "$(stat -c %s "$path")" "$crc" "${path//\//\\}"
done | LC_ALL=C sort -k4)
listed=$(grep -E '^(file|unreadable) ' "$report" || true)
[ "$listed" = "$expected" ] || fail "files seen by install.exe differ:"$'\n'"$(diff <(echo "$expected") <(echo "$listed"))"

# The temporary folder, named on the report's second line, is emptied and removed. Under wine the
# console host of the stand-in keeps the empty folder as its own working folder a moment too long,
# so only an empty folder may stay.
folder=${lines[1]#folder }
case "$folder" in
C:\\*)
    host_folder="$WINEPREFIX/drive_c/$(printf '%s' "${folder#C:\\}" | tr '\\' '/')"
    [ -z "$(find "$host_folder" -mindepth 1 2>/dev/null)" ] || fail "files were left behind in $folder"
    ;;
*) fail "install.exe ran outside a temporary folder on C: ($folder)" ;;
esac

[ "$failures" -eq 0 ] || exit 1
echo "ok: the package started install.exe with its arguments and every file intact"
