# Installs Debian packages that are missing, quietly; does nothing, and asks nothing of the network, when none is.
# Usage: require_packages PACKAGE...
#        require_documents PACKAGE FILE    FILE lies below /usr/share/doc, which some systems leave out of every package
#        require_source_package NAME FOLDER
#        require_npm_package NAME VERSION FOLDER
#        require_locale NAME               the locale of that language and country in UTF-8; needs the package locales

is_installed()
{
    dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}

install_packages()
{
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    local log
    log=$(mktemp)
    # The package lists may be missing or old; only then is the update worth its time.
    if ! "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "$@" </dev/null >"$log" 2>&1; then
        "${root[@]}" apt-get update -qq </dev/null >"$log" 2>&1 &&
            "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
                "$@" </dev/null >>"$log" 2>&1 ||
            { cat "$log" >&2; rm -f "$log"; echo "Could not install $*" >&2; return 1; }
    fi
    rm -f "$log"
}

require_packages()
{
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing ${missing[*]}"
    install_packages "${missing[@]}"
}

require_documents()
{
    [ -e "$2" ] && return 0
    echo "Installing $1 with its documents"
    install_packages --reinstall -o "DPkg::Options::=--path-include=/usr/share/doc/$1/*" "$1"
}

# Unpacks the source of a Debian package to FOLDER. The system need not list sources: lists of our own are asked, made of
# the system's.
require_source_package()
{
    local name=$1 folder=$2 work
    [ -d "$folder" ] && return 0
    echo "Fetching the source of $name"
    require_packages dpkg-dev || return 1
    work=$(mktemp -d)
    mkdir -p "$work/sources" "$work/lists/partial" "$work/cache/archives/partial" "$(dirname "$folder")"
    local own=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$work/sources"
        -o "Dir::State::Lists=$work/lists" -o "Dir::Cache=$work/cache")
    local list=/etc/apt/sources.list
    [ ! -e "$list" ] || sed -n 's/^deb /deb-src /p' "$list" >"$work/sources/system.list"
    for list in /etc/apt/sources.list.d/*.sources; do
        [ ! -e "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$work/sources/$(basename "$list")"
    done
    # A list without sources fails here and is none for us; what counts is what is found.
    (cd "$work" && { apt-get "${own[@]}" update || true; } && apt-get "${own[@]}" source "$name" &&
        rm -f ./*.dsc ./*.tar.*) >"$work/log" 2>&1 && mv "$work/$name"-*/ "$folder" ||
        { cat "$work/log" >&2; rm -rf "$work"; echo "Could not fetch the source of $name" >&2; return 1; }
    rm -rf "$work"
}

# Unpacks an npm package, without what it depends on, to FOLDER/package.
require_npm_package()
{
    local name=$1 version=$2 folder=$3
    [ -e "$folder/package/package.json" ] && return 0
    echo "Fetching $name"
    command -v npm >/dev/null 2>&1 || require_packages npm || return 1
    rm -rf "$folder" && mkdir -p "$folder/new" && (
        cd "$folder" && npm pack --silent "$name@$version" >/dev/null && tar -xzf "$name-$version.tgz" -C new &&
            mv new/package package && rm -r new
    ) || { echo "Could not fetch $name" >&2; return 1; }
}

require_locale()
{
    locale -a | grep -qx "$1.utf8" && return 0
    echo "Making the locale $1.UTF-8"
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    "${root[@]}" localedef -i "$1" -f UTF-8 "$1.UTF-8"
}
