# Takes a picture of the program's window at 96 and at 144 dots per inch: FOLDER/Rechnungsbuch-96.png and -144.png.
# Usage: take-screenshots.sh WINE PROGRAM FOLDER, with WINEPREFIX for a prefix of its own.
#
# On a display of its own, without a window manager. Wine's resolution is a value in the registry, which a server reads
# once.
set -eu
if [ "$1" != --inside ]; then
    exec xvfb-run -a -s '-screen 0 1600x1000x24' bash "$0" --inside "$@"
fi
wine=$2 program=$3 folder=$4

restart_server()
{
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w
    sh "$(dirname "$0")/../../../cmake/start-wine.sh"
}

set_registry()
{
    "$wine" reg add "$1" /v "$2" /t "$3" /d "$4" /f </dev/null >/dev/null 2>&1
}

# The screen, as soon as there is a window on it and it stands still.
take_screenshot()
{
    local former= now tries
    for tries in $(seq 100); do
        sleep 0.3
        import -window root "$1"
        now=$(identify -format '%# %k' "$1") # the picture's checksum and its number of colours
        [ "$now" != "$former" ] || [ "${now##* }" -eq 1 ] || return 0
        former=$now
    done
    echo "no window at $dpi dots per inch" >&2
    return 1
}

trap 'wineserver -k >/dev/null 2>&1' EXIT # before its display is gone
restart_server
# The signs of the caption's buttons (Debian's package fonts-wine), which this Wine does not find by itself.
cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts"
set_registry 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
for dpi in 96 144; do
    set_registry 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD $dpi
    restart_server
    "$wine" "$program" --date 31.3.2025 </dev/null >/dev/null 2>&1 &
    picture=$folder/Rechnungsbuch-$dpi.png
    take_screenshot "$picture"
    convert "$picture" -trim +repage -strip +dither -colors 64 "PNG8:$picture"
    echo "$picture"
done
