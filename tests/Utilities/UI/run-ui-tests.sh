# Runs the UI tests under Wine, in the prefix that the environment names.
# Usage: run-ui-tests.sh null|display WINE PROGRAM
#
# null: without any display, by Wine's null driver, which is fast; all tests, then those of the resolution at others.
# display: once on a display of its own, without a window manager.
set -u
driver=$1 wine=$2 program=$3

# The server would keep our output open, so it is started apart from it.
restart_server()
{
    wineserver -k >/dev/null 2>&1
    wineserver -w
    sh "$(dirname "$0")/../../../cmake/start-wine.sh"
}

set_registry()
{
    "$wine" reg add "$1" /v "$2" /t "$3" /d "$4" /f </dev/null >/dev/null 2>&1 || { echo "no $1 $2"; exit 1; }
}

# Wine may end a crashed program with 0, so its last words count.
run()
{
    "$wine" "$program" "$@" </dev/null 2>&1 | tee "$WINEPREFIX/output"
    grep -q '\[  PASSED  \]' "$WINEPREFIX/output" || { echo "[  FAILED  ] $*"; exit 1; }
}

case $driver in
null)
    unset DISPLAY
    restart_server
    set_registry 'HKCU\Software\Wine\Drivers' Graphics REG_SZ null
    for dpi in 96 120 144 192; do
        set_registry 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD $dpi
        restart_server
        [ $dpi -ne 96 ] || run
        [ $dpi -eq 96 ] || UI_TEST_DPI=$dpi run --gtest_filter='*DPI*'
    done
    set_registry 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD 96
    ;;
display)
    exec xvfb-run -a -s '-screen 0 1024x768x24' bash "$0" inside "$wine" "$program"
    ;;
inside)
    restart_server
    set_registry 'HKCU\Software\Wine\Drivers' Graphics REG_SZ x11
    set_registry 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
    restart_server
    UI_TEST_FEW_DIALOGS=1 run
    wineserver -k # before its display is gone
    ;;
esac
exit 0
