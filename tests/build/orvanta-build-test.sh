#!/usr/bin/env bash
# orvanta-build end to end: a project made by makeproject, built through the command processor
# with real 7-Zip and with a recording rar; reproducible builds, signing, and the package under
# wine with a fresh prefix (only once the real stubs lie beside the program).
# Usage: orvanta-build-test.sh BIN_FOLDER MAKEPROJECT
set -uo pipefail
bin=$1
makeproject=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}
# expect NAME EXPECTED ACTUAL: the two texts, line by line.
expect() {
    if [ "$2" != "$3" ]; then
        fail "$1"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2
    fi
}
command -v 7z >/dev/null || { echo "7z is not installed (p7zip-full): skipped"; exit 77; }

# A user of our own: workspace, registry store and 7-Zip's registration below $work.
export HOME=$work/home XDG_DATA_HOME=$work/home/data
unset XDG_DOCUMENTS_DIR SOURCE_DATE_EPOCH
project=$("$makeproject" "$HOME/Documents/Orvanta") || exit 1
package="$project/compiled/Demo Setup 1.0.exe"
build() { "$bin/orvanta-build" "$project" "$@" >"$work/out" 2>"$work/err"; }
is_program() { [ "$(head -c 2 "$1")" = MZ ]; }

# Paths of the archive's entries, with "/" for folders. 7-Zip lists folders and empty files first
# and keeps executables (packed through its BCJ filter) in blocks at the end, so the order of
# adding shows in the other entries that hold data; the three groups are listed apart.
listing() {
    7z l -slt "$1" | awk -F' = ' '
        /^----------/ { body = 1 }
        body && /^Path = / { path = $2 }
        body && /^Attributes = / { folder = substr($2, 1, 1) == "D" }
        body && /^Size = / { size = $2 }
        body && /^Method = / { program = $2 ~ /^BCJ/ }
        body && /^$/ && path != "" {
            if (folder) dirs = dirs path "/\n"
            else if (size == 0) empty = empty path "\n"
            else if (program) programs = programs path "\n"
            else data = data path "\n"
            path = ""; program = 0
        }
        END { printf "%s%s--\n%s--\n%s", dirs, empty, data, programs }'
}

# ---- 7-Zip: every setup file that exists, in the order of its list, then the application files.
build || fail "7-Zip build: exit $? $(cat "$work/err")"
hash=$(cd "$project" && ls ./*hsh | sed 's|^\./||')
expect "the package's path on standard output" "$package" "$(cat "$work/out")"
expect "7-Zip package entries" "files/
files/bin/
files/bin/deep folder/
fonts/
packages/
settingsset/
dependencies.cfg
files/bin/deep folder/empty.txt
packages.cfg
settingsset/settings.cfg
--
$hash
files.cfg
folders.cfg
mainsettings.cfg
appdatalocations.cfg
registrylocations.cfg
intro.cfg
tips.cfg
uninstallIntro.cfg
uninstallEnd.cfg
ok.png
check.png
install.exe.manifest
cleanup.bat
fonts.cfg
files/bin/data.bin
files/demo.exe
files/readme.txt
packages/extra.txt
fonts/demo.ttf
--
install.exe
uninstall.exe" "$(listing "$package")"
expect "what the 7-Zip build leaves" "Demo Setup 1.0.exe" "$(ls "$project/compiled")"
[ ! -e "$project/install.exe" ] || fail "the staged install.exe was left in the project"
grep -q "75% Cleaning temporary files..." "$work/err" || fail "plain progress lines: $(cat "$work/err")"

# ---- The wizard's screens: a PNG a step and screens.json, without building anything.
if "$bin/orvanta-build" --help | grep -q -- --screens && [ -n "$(command -v python3)" ]; then
    rm -f "$package"
    QT_QPA_PLATFORM=offscreen build --screens "$work/screens" || fail "screens: exit $? $(cat "$work/err")"
    [ ! -e "$package" ] || fail "--screens built a package"
    expect "the screens written" "1-start.png
2-installing.png
3-finished.png
screens.json" "$(ls "$work/screens")"
    for picture in "$work"/screens/*.png; do
        [ "$(head -c 4 "$picture" | tail -c 3)" = PNG ] || fail "not a PNG: $picture"
    done
    expect "what the screens show" "start: Demo Installation; Label1 Demo; Command1 Install
installing: Demo Installation; Label13 Copying files...
finished: Demo Installation; Command1 Run Demo" "$(python3 -c '
import json, sys
for screen in json.load(open(sys.argv[1]))["screens"]:
    shown = {c["name"]: c["text"] for c in screen["controls"]}
    wanted = {"start": ["Label1", "Command1"], "installing": ["Label13"], "finished": ["Command1"]}[screen["step"]]
    print(screen["step"] + ": " + screen["title"] + "; " + "; ".join(n + " " + shown[n] for n in wanted))
' "$work/screens/screens.json")"
    build || fail "7-Zip build after the screens: exit $? $(cat "$work/err")"
fi

# ---- An edition: its own working set and its own package.
build --edition Pro || fail "edition build: exit $? $(cat "$work/err")"
pro="$project/editions/Pro/compiled/Demo Setup 1.0.exe"
expect "the edition's package" "$pro" "$(cat "$work/out")"
expect "the edition's application" "the Pro application" "$(7z e -so "$pro" files/demo.exe 2>/dev/null)"

# ---- A failed check: its message, its exit status, nothing built.
rm -f "$package"
sed -i '2s/.*/\r/' "$project/mainsettings.cfg"
build
expect "exit status of a missing publisher" 11 $?
grep -q "You must name an author/publisher!" "$work/err" || fail "check message: $(cat "$work/err")"
[ ! -e "$package" ] || fail "a failed check built a package"
"$makeproject" "$HOME/Documents/Orvanta" >/dev/null

# ---- WinRAR: every call of the recording rar, and the archive renamed between the two runs.
mkdir -p "$work/rar"
ln -s "$here/recording-rar.sh" "$work/rar/rar"
export RAR_LOG=$work/rar.log
PATH="$work/rar:$PATH" build --compressor winrar --level 2 || fail "WinRAR build: exit $? $(cat "$work/err")"
hash=$(cd "$project" && ls ./*hsh | sed 's|^\./||')
stub=$(head -n 1 "$bin/data/package" | cut -c1-30)
calls="" held="$stub .. $(tail -n 1 "$bin/data/package")"
setup_call() {
    calls="$calls
held: $held
[a][-ep1][-md4096][-m5][$project/compiled/package.exe][$project/$1]"
    [ -e "$project/$1" ] || [ "$1" = install.exe ] || [ "$1" = uninstall.exe ] && held="$stub .. +$1"
}
for file in "$hash" files.cfg folders.cfg mainsettings.cfg dependencies.cfg appdatalocations.cfg \
    registrylocations.cfg intro.cfg tips.cfg uninstallIntro.cfg packages.cfg uninstallEnd.cfg check.png \
    ok.png install.exe install.exe.manifest uninstall.exe cleanup.bat logo.png 1.jpg preview.png \
    slicense.txt prgbar.ocx executables.cfg fonts.cfg; do
    setup_call "$file"
done
for folder in files packages settingsset fonts; do
    calls="$calls
held: $held
[a][-ep1][-md4096][-m2][$project/compiled/package.rar][$project/$folder]"
    held="$stub .. +$folder"
done
calls="$calls
held: $held
[k][$project/compiled/package.rar]"
expect "the calls of rar" "${calls#?}" "$(cat "$RAR_LOG")"
expect "the WinRAR package ends locked" locked "$(tail -n 1 "$package")"
[ ! -e "$project/compiled/package.rar" ] && [ ! -e "$project/compiled/package.exe" ] ||
    fail "the WinRAR build left its temporary archive"

# ---- Reproducible: two builds a day apart in file times give the same bytes.
export SOURCE_DATE_EPOCH=1700000000
build --reproducible || fail "reproducible build: exit $? $(cat "$work/err")"
cp "$package" "$work/first.exe"
touch "$project/files/demo.exe" "$project/fonts"
sleep 1
build --reproducible || fail "second reproducible build: exit $? $(cat "$work/err")"
cmp "$work/first.exe" "$package" || fail "two reproducible builds differ"
dates=$(7z l -slt "$package" | sed -n 's/^Modified = \(.\{19\}\).*/\1/p' | sort -u)
expect "every entry has the time of SOURCE_DATE_EPOCH" "2023-11-14 22:13:20" "$dates"
unset SOURCE_DATE_EPOCH
# Without it, the time of the last save before the build: a build's own save does not move it.
touch -d @1600000000 "$project/mainsettings.cfg"
for round in 1 2; do
    build --reproducible || fail "reproducible build $round by the last save: exit $? $(cat "$work/err")"
    cp "$package" "$work/by-save-$round.exe"
done
cmp "$work/by-save-1.exe" "$work/by-save-2.exe" || fail "two builds by the time of the last save differ"

# ---- Signing: the programs before packing, the package after the join; a failure fails the build.
build --sign-command 'printf "<signed>" >>{}' || fail "signing build: exit $? $(cat "$work/err")"
expect "the package is signed last" "<signed>" "$(tail -c 8 "$package")"
7z e -so "$package" install.exe | tail -c 8 | grep -q "<signed>" || fail "install.exe was packed unsigned"
build --sign-command 'case {} in *Setup*) exit 3 ;; esac'
expect "exit status of a failed signing of the package" 1 $?
grep -q "The signing command failed" "$work/err" || fail "signing failure message: $(cat "$work/err")"
[ ! -e "$package" ] || fail "an unsigned package was left under the final name"

if is_program "$bin/data/install" && is_program "$bin/data/package2"; then
    # ---- Real signing and the package under wine, with the stand-in installer's report.
    openssl req -x509 -newkey rsa:2048 -nodes -keyout "$work/k.pem" -out "$work/c.pem" -days 2 \
        -subj "/CN=Orvanta test" 2>/dev/null
    sign="osslsigncode sign -certs '$work/c.pem' -key '$work/k.pem' -in {} -out {}.signed && mv {}.signed {}"
    build --sign-command "$sign" >/dev/null 2>&1 || fail "osslsigncode build: exit $? $(cat "$work/err")"
    osslsigncode verify -CAfile "$work/c.pem" "$package" >"$work/verify" 2>&1 ||
        fail "the signed package does not verify: $(cat "$work/verify")"
    export WINEPREFIX=$work/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
    wineboot --init >/dev/null 2>&1
    report=$work/report.txt
    [ -n "$(command -v wine)" ] || fail "wine is not installed"
    ORVANTA_STANDIN_REPORT="Z:${report//\//\\}" wine "$package" /S "two words" >/dev/null 2>&1
    wineserver --wait
    [ -f "$report" ] || fail "the package did not start install.exe under wine"
    # Every file of the archive, byte for byte, with its size and CRC-32 as the stand-in lists them;
    # the signed programs as the package holds them.
    report_line() { # NAME < bytes
        local bytes=$work/bytes
        cat >"$bytes"
        echo "file $(stat -c %s "$bytes") $(gzip -c <"$bytes" | tail -c 8 | od -An -tx4 -N4 | tr -d ' ') ${1//\//\\}"
    }
    expected=$(printf 'argument %s\n' /S "two words"
        for program in install.exe uninstall.exe; do 7z e -so "$package" $program | report_line $program; done
        cd "$project" && { ls ./*hsh ./*.cfg ok.png check.png install.exe.manifest cleanup.bat
            find files packages settingsset fonts -type f; } | while read -r file; do
            report_line "${file#./}" <"$file"
        done)
    missing=$(grep -vxFf <(tr -d '\r' <"$report") <<<"$expected")
    [ -z "$missing" ] || fail "not in the installer's report: $missing"
else
    echo "the stubs beside the program are stand-ins: signing with osslsigncode and wine skipped"
fi

[ "$failures" -eq 0 ] && echo "orvanta-build: all passed"
exit $((failures > 0))
