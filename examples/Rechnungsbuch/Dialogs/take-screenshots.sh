# Takes a picture of the program's window at 96 and at 144 dots per inch: FOLDER/Rechnungsbuch-96.png and -144.png. It
# starts in an empty folder, so that only what lies beside it can be found.
# Usage: take-screenshots.sh WINE PROGRAM FOLDER
#
# On a display of its own, without a window manager, and in a Wine prefix of its own: the resolution is a value in the
# registry, which a server reads once.
set -eu
if [ "$1" != --inside ]; then
    exec xvfb-run -a -s '-screen 0 1600x1000x24' bash "$0" --inside "$@"
fi
wine=$2 program=$(realpath "$3") folder=$(realpath "$4")
export WINEPREFIX=$folder/wineprefix WINEDEBUG=-all WINEDLLOVERRIDES=winedbg.exe,mscoree,mshtml=d LC_ALL=de_DE.UTF-8

restart_server()
{
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w
    sh "$sources/cmake/start-wine.sh"
}

set_registry()
{
    "$wine" reg add "$1" /v "$2" /t "$3" /d "$4" /f </dev/null >/dev/null 2>&1
}

# The screen, as soon as there is a window on it and it stands still, cut down to the window.
take_screenshot()
{
    local picture=$1 former= now tries
    for tries in $(seq 100); do
        sleep 0.3
        import -window root "$picture"
        now=$(identify -format '%# %k' "$picture") # the picture's checksum and its number of colours
        if [ "$now" = "$former" ] && [ "${now##* }" -gt 1 ]; then
            convert "$picture" -trim +repage -strip +dither -colors 64 "PNG8:$picture"
            return
        fi
        former=$now
    done
    return 1
}

sources=$(realpath "$(dirname "$0")/../../..")
trap 'wineserver -k >/dev/null 2>&1' EXIT # before its display is gone
restart_server
# The signs of the caption's buttons (Debian's package fonts-wine), which Debian's Wine does not find by itself.
cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts"
set_registry 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
rm -rf "$folder/empty" && mkdir "$folder/empty" && cd "$folder/empty"
for dpi in 96 144; do
    set_registry 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD $dpi
    restart_server
    "$wine" "$program" --date 31.3.2025 </dev/null >/dev/null 2>&1 &
    picture=$folder/Rechnungsbuch-$dpi.png
    # A message box that tells a fault is smaller.
    if ! take_screenshot "$picture" || [ "$(identify -format %w "$picture")" -lt $((8 * dpi)) ]; then
        echo "no main window at $dpi dots per inch" >&2
        exit 1
    fi
    echo "$picture"
done
