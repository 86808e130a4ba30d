# Shows that no file includes what its layer may not know. Runs in the source folder.
# Usage: check-layers.sh PUBLIC_HEADER...
failures=0

report()
{
    [ -z "$2" ] || { printf '%s\n%s\n' "$1" "$2"; failures=$((failures + 1)); }
}

# A family may include itself and the families after it.
allow()
{
    local family=$1 allowed
    allowed=$(IFS='|'; echo "$*")
    report "$family may not include:" "$(
        grep -rnE '^#include <(Exceptions|Utilities|SysBase|IParser|ICommandProcessor|IXMLStreamer|PropertyStore|Platform)/' "$family" |
            grep -vE "#include <($allowed)/"
    )"
}

allow Exceptions
allow Utilities Exceptions Platform
allow SysBase Utilities Exceptions Platform
allow ICommandProcessor Exceptions Platform
allow IParser Utilities Exceptions Platform
allow IXMLStreamer IParser Utilities Exceptions Platform
allow PropertyStore IXMLStreamer Utilities Exceptions Platform
allow Platform Exceptions

# The dialog helpers stand on top of Utilities, for Windows only.
report "Only the UI may include itself:" "$(grep -rn '^#include <Utilities/UI/' . | grep -v '^\./Utilities/UI/')"

# What a public header includes of ours is public too.
private=$(grep -HoE '^#include <[^>]*/[^>]*>' "$@" | grep -vE '<(sys|bits)/' | while IFS=: read -r header include; do
    included=${include#*<}
    included=${included%>}
    case " $* " in *" $included "*) ;; *) echo "$header: $included" ;; esac
done)
report "Public headers include what is not installed:" "$private"

report "Only Platform, VekApi.h and the UI may ask for the platform:" "$(
    grep -rnE '^ *# *(if|ifdef|ifndef|elif).*(_WIN32|__linux__|_MSC_VER|__MINGW)' --include='*.h' --include='*.cpp' . |
        grep -vE '^\./(Platform/|VekApi\.h|Utilities/UI/)'
)"

# Microsoft's compiler has none of these, and clang in its place would not complain.
report "Only Platform/Posix, VekApi.h and two guarded headers of Platform may use GNU extensions:" "$(
    grep -rnE '\[\[gnu::|__attribute__|__builtin_|__int128|__asm__|__extension__|__typeof__|\bssize_t\b|\?:' \
        --include='*.h' --include='*.cpp' . | grep -vE '^[^:]*:[0-9]*: *//' |
        grep -vE '^\./(Platform/Posix/|Platform/(Attributes|WideInteger)\.h|VekApi\.h)'
)"
exit $failures
