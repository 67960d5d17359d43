# Shared by the scripts of this folder: what they say, and how they get Debian's packages.
# Sourced, with `set -euo pipefail` in force.

# Exit status of a script that lacks something the archive does not give at the moment, and of
# nothing else: a caller may skip its work then, where any other failure is a failure.
readonly exit_unavailable=69

say() { printf '%s: %s\n' "${0##*/}" "$*"; }
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}
unavailable() {
    printf '%s: NOT TO BE HAD FROM THE ARCHIVE: %s\n' "${0##*/}" "$*" >&2
    exit "$exit_unavailable"
}

# Everything that is built or fetched once for all checkouts.
cache_folder() { printf '%s/q7-impressora' "${XDG_CACHE_HOME:-${HOME:-/root}/.cache}"; }

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# install_packages NAME...: installs what is missing; touches nothing and asks no mirror otherwise.
install_packages() {
    local missing=() name
    for name in "$@"; do is_installed "$name" || missing+=("$name"); done
    [ ${#missing[@]} -eq 0 ] && return 0
    [ "$(id -u)" -eq 0 ] || fail "run as root, or install first: ${missing[*]}"
    say "installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q >/dev/null 2>&1 || say "the package lists could not be refreshed"
    local log
    log=$(mktemp)
    if ! apt-get install -q -y --no-install-recommends "${missing[@]}" >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        if archive_is_at_fault "$log"; then
            unavailable "one of the packages ${missing[*]}"
        fi
        fail "could not install ${missing[*]}"
    fi
    rm -f "$log"
}

# archive_is_at_fault LOG: whether apt says there that it was not given what it asked for, and not
# that this machine stood in the way.
archive_is_at_fault() {
    grep -qE '^(E|W|Err)[: ].*(Failed to fetch|Unable to (fetch|locate|find)|no installation candidate|resolv|deb-src)' \
        "$1"
}
