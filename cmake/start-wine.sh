# Starts the Wine server of $WINEPREFIX apart from this process and makes the prefix if it is not there yet.
mkdir -p "$WINEPREFIX"
wineserver -p120 </dev/null >/dev/null 2>&1
wineboot </dev/null >/dev/null 2>&1
