# Shows that nothing of ours runs when the library is loaded: no source has a dynamic initialiser.
# Usage: check-load.sh NM LIBRARY
found=$("$1" -C "$2" | grep -E 'GLOBAL__sub_I|__static_initialization_and_destruction')
[ $? -le 1 ] || exit 1
"$1" "$2" | grep -q . || { echo "no symbols in $2"; exit 1; }
[ -z "$found" ] || { echo "These run at load:"; echo "$found"; exit 1; }
