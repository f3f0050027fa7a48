#!/bin/sh
# A stand-in for WinRAR's rar: logs each call as one line (the arguments in brackets) to
# $RAR_LOG, preceded by what the archive held before the call ("held: <first line> .. <last
# line>"), then adds one line per added path to the archive, or "locked" for "k". A missing path
# fails the call, as rar does, without touching the archive.
set -u
command=$1
shift
operands=""
for argument in "$@"; do
    case $argument in -*) ;; *) operands="$operands$argument
" ;; esac
done
archive=$(printf '%s' "$operands" | sed -n 1p)
line=""
for argument in "$command" "$@"; do line="$line[$argument]"; done
if [ -f "$archive" ]; then
    held="$(head -n 1 "$archive" | cut -c1-30) .. $(tail -n 1 "$archive")"
else
    held="nothing"
fi
printf 'held: %s\n%s\n' "$held" "$line" >>"$RAR_LOG"
if [ "$command" = k ]; then
    echo locked >>"$archive"
    exit 0
fi
printf '%s' "$operands" | sed 1d | while IFS= read -r added; do
    [ -e "$added" ] || exit 1
    echo "+$(basename "$added")" >>"$archive"
done
