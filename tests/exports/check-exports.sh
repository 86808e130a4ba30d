# Compares what a library exports with the checked-in list. Usage: check-exports.sh OBJDUMP LIBRARY LIST
# With VEK_UPDATE_EXPORTS set, the list is written anew.
#
# Instantiations of the standard library's templates are left out: the compiler decides which of them a build contains.
set -u -o pipefail
objdump=$1 library=$2 list=$3

exported_names()
{
    case "$library" in
    *.dll) "$objdump" -p "$library" | sed -n 's/^\t\[ *[0-9]*\] \(_Z[^ ]*\)$/\1/p; s/^\t\[ *[0-9]*\] +base\[ *[0-9]*\]  *[0-9a-f]* \(_Z[^ ]*\)$/\1/p' ;;
    *) "$objdump" -T "$library" | sed -n '/\*UND\*/d; s/^[0-9a-f]\{16\} [gu ][w ].* \(_Z[^ ]*\)$/\1/p' ;;
    esac
}

# Ours, with their virtual tables and type information; not the names of types, which come with the latter.
actual=$(exported_names | grep -E '^_Z(T[VI])?NK?(3Vek|10VekSysBase)' | c++filt | LC_ALL=C sort -u)
[ -n "$actual" ] || { echo "no exported symbol found in $library"; exit 1; }
[ -z "${VEK_UPDATE_EXPORTS:-}" ] || printf '%s\n' "$actual" >"$list"
diff "$list" - <<<"$actual" && exit 0
echo "The exported symbols are not those of $list. If that is meant: ./test.sh --update-exports"
exit 1
