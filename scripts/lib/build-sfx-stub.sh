#!/usr/bin/env bash
# Builds the self-extracting stub that an Orvanta package starts with: 7-Zip's small C installer
# stub ("SfxSetup"), compiled with mingw-w64 from Debian's own 7-Zip source package and patched so
# that it starts the root install.exe and nothing else.
#
#   build-sfx-stub.sh OUTPUT CACHE_FOLDER PATCH
#
# The source package is fetched once into CACHE_FOLDER, with an apt state of its own there (the
# system's apt configuration is read, never changed), so no root rights are needed and a rebuild
# costs nothing. The result carries no time stamp: building twice gives the same bytes.
set -euo pipefail

if [ $# -ne 3 ]; then
    echo "usage: $0 OUTPUT CACHE_FOLDER PATCH" >&2
    exit 2
fi
output=$1
cache=$2
patch_file=$(realpath "$3")
source_package=7zip/bookworm
# The C files that 7-Zip's own makefile of the stub lists, beside SfxSetup.c.
c_files=(7zAlloc 7zArcIn 7zBuf 7zBuf2 7zFile 7zDec 7zStream Bcj2 Bra Bra86 BraIA64 CpuArch Delta DllSecur
    Lzma2Dec LzmaDec 7zCrc 7zCrcOpt)

fail() {
    echo "build-sfx-stub: $*" >&2
    exit 1
}

check_tools() {
    local tool
    for tool in x86_64-w64-mingw32-gcc-posix x86_64-w64-mingw32-windres; do
        command -v "$tool" >/dev/null ||
            fail "$tool is missing: install the Debian package g++-mingw-w64-x86-64-posix (scripts/test does)"
    done
    for tool in apt-get patch tar; do
        command -v "$tool" >/dev/null || fail "$tool is missing: it is needed to fetch and patch 7-Zip's source"
    done
}

# deb-src entries for the Debian archives that apt already uses: deb822 stanzas and one-line lists.
source_entries() {
    local file
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -f "$file" ] || continue
        awk 'BEGIN { RS = ""; ORS = "\n\n" }
             /(^|\n)Types:[^\n]*deb([ \t\n]|$)/ && /(^|\n)URIs:[^\n]*debian/ {
                 sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); sub(/^\n/, ""); print }' "$file"
    done >"$apt_dir/sources.list.d/debian-src.sources"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$file" ] || continue
        sed -n -E 's/^[[:space:]]*deb([[:space:]]+.*debian.*)$/deb-src\1/p' "$file"
    done >"$apt_dir/sources.list.d/debian-src.list"
    [ -s "$apt_dir/sources.list.d/debian-src.sources" ] || [ -s "$apt_dir/sources.list.d/debian-src.list" ] ||
        fail "no Debian archive found in /etc/apt/sources.list*: cannot fetch 7-Zip's source"
}

download_source() {
    [ -n "$(find "$cache/download" -maxdepth 1 -name '*.orig.tar.*' 2>/dev/null)" ] && return 0
    apt_dir="$cache/apt"
    mkdir -p "$apt_dir/sources.list.d" "$apt_dir/lists/partial" "$apt_dir/cache/archives/partial"
    source_entries
    local apt_options=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$apt_dir/sources.list.d"
        -o "Dir::State::Lists=$apt_dir/lists" -o "Dir::Cache=$apt_dir/cache" -o APT::Sandbox::User="$(id -un)")
    echo "build-sfx-stub: fetching Debian's source of $source_package"
    apt-get "${apt_options[@]}" -qq update || true
    rm -rf "$cache/download.partial"
    mkdir -p "$cache/download.partial"
    (cd "$cache/download.partial" && apt-get "${apt_options[@]}" -qq source --download-only "$source_package") ||
        fail "could not download the source package $source_package (network or apt sources?)"
    rm -rf "$cache/download"
    mv "$cache/download.partial" "$cache/download"
    # The package indexes were only needed to find the source.
    rm -rf "$apt_dir"
}

unpack_and_patch() {
    [ -f "$cache/source/C/Util/SfxSetup/SfxSetup.c" ] && [ "$cache/source/.patched" -nt "$patch_file" ] && return 0
    rm -rf "$cache/source" "$cache/source.partial"
    mkdir -p "$cache/source.partial"
    tar -xf "$(find "$cache/download" -maxdepth 1 -name '*.orig.tar.*' | head -n 1)" \
        -C "$cache/source.partial" --strip-components=1 ||
        fail "could not unpack the source package in $cache/download"
    patch -s -p1 -d "$cache/source.partial" <"$patch_file" ||
        fail "$patch_file does not apply to this version of 7-Zip's source"
    touch "$cache/source.partial/.patched"
    mv "$cache/source.partial" "$cache/source"
}

compile() {
    [ "$cache/stub.exe" -nt "$cache/source/.patched" ] && [ "$cache/stub.exe" -nt "$0" ] && return 0
    local folder="$cache/source/C/Util/SfxSetup"
    local sources=(SfxSetup.c)
    local name
    for name in "${c_files[@]}"; do sources+=("../../$name.c"); done
    # Relative paths and a stripped result keep the build folder out of the bytes.
    (cd "$folder" &&
        x86_64-w64-mingw32-windres -O coff resource.rc -o "$cache/resource.o" &&
        x86_64-w64-mingw32-gcc-posix -Os -DZ7_EXTRACT_ONLY -DUNICODE -D_UNICODE -mwindows -s \
            -Wl,--no-insert-timestamp -o "$cache/stub.partial.exe" "${sources[@]}" "$cache/resource.o" -lshell32 &&
        mv "$cache/stub.partial.exe" "$cache/stub.exe") ||
        fail "compiling 7-Zip's stub failed (see above)"
}

check_tools
mkdir -p "$cache"
cache=$(realpath "$cache")
download_source
unpack_and_patch
compile
mkdir -p "$(dirname "$output")"
cp "$cache/stub.exe" "$output.partial"
mv "$output.partial" "$output"
