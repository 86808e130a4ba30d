# Installs Debian packages that are missing, quietly; does nothing, and asks nothing of the network, when none is.
# Usage: require_packages PACKAGE...

is_installed()
{
    dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}

require_packages()
{
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}"
    local log
    log=$(mktemp)
    # The package lists may be missing or old; only then is the update worth its time.
    if ! "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" </dev/null >"$log" 2>&1; then
        "${root[@]}" apt-get update -qq </dev/null >"$log" 2>&1 &&
            "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
                "${missing[@]}" </dev/null >>"$log" 2>&1 ||
            { cat "$log" >&2; rm -f "$log"; echo "Could not install ${missing[*]}" >&2; return 1; }
    fi
    rm -f "$log"
}
