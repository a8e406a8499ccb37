# Sourced by ./play and ./check: installs the packages that are missing, configures and builds.
# The caller stands in the top folder of the checkout and has set -euo pipefail.

# wanted_packages SECTION...: the packages of these sections of the list that this system should have.
wanted_packages() {
    local release
    release=$(. /etc/os-release && echo "${VERSION_ID:-999}") # testing and unstable have no number
    sed -e 's/#.*//' packages.txt | awk -v release="${release%%.*}" -v sections=" $* " '
        NF == 0 { next }
        match($1, /^\[[a-z]+\]$/) { wanted = index(sections, " " substr($1, 2, length($1) - 2) " "); next }
        !wanted { next }
        match($2, /^\[[0-9]+-\]$/) && release + 0 < substr($2, 2) + 0 { next }
        { print $1 }'
}

missing_packages() {
    local wanted
    wanted=$(wanted_packages "$@" | xargs)
    # shellcheck disable=SC2086 # a list of names
    comm -23 <(printf '%s\n' $wanted | sort) \
        <(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' $wanted 2>/dev/null | awk '/^ii/ {print $2}' | sort -u)
}

# install_packages SECTION...: what is missing of these sections. Asks for the password when it must.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This is not a Debian system: the packages of packages.txt must be there under their names here." >&2
        return 0
    fi
    local missing
    missing=$(missing_packages "$@" | xargs)
    [ -z "$missing" ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing and there is no sudo to install them: $missing" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing: $missing"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    # shellcheck disable=SC2086
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing \
        >/dev/null
}

# configure PRESET: says why when it fails, and nothing else.
configure() {
    local said
    said=$(cmake --preset "$1" 2>&1) || {
        printf '%s\n' "$said" >&2
        return 1
    }
}

# build PRESET [TARGET...]: builds the targets, all without one. Silent when nothing is new.
build() {
    local preset=$1
    shift
    cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet
}
