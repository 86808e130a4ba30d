# Compares all that a library exports with the checked-in list. Usage: check-exports.sh OBJDUMP LIBRARY LIST
# With VEK_UPDATE_EXPORTS set, the list is written anew.
set -u -o pipefail
objdump=$1 library=$2 list=$3

exported_names()
{
    case "$library" in
    *.dll) "$objdump" -p "$library" | sed -En 's/^\t\[ *[0-9]+\] (\+base\[ *[0-9]+\] +[0-9a-f]+ )?([^ ]+)$/\2/p' ;;
    *) "$objdump" -T "$library" | awk '$1 ~ /^[0-9a-f]+$/ && !/\*UND\*/ { print $NF }' ;;
    esac
}

# Without the names of types, which come with the type information.
actual=$(exported_names | grep -v '^_ZTS' | c++filt | LC_ALL=C sort -u)
[ -n "$actual" ] || { echo "no exported symbol found in $library"; exit 1; }
[ -z "${VEK_UPDATE_EXPORTS:-}" ] || printf '%s\n' "$actual" >"$list"
diff <(LC_ALL=C sort -u "$list") - <<<"$actual" && exit 0 # sorted: two branches' lists are merged line by line
echo "The exported symbols are not those of $list. If that is meant: ./test.sh --update-exports"
exit 1
