# A Wine that runs 32-bit and 64-bit programs, the system's own or one in an i386 Debian tree of its
# own. Sourced after debian.sh.
#
#   prepare_wine          makes it ready; ends the script as unavailable when the archive lacks it
#   in_wine COMMAND...    runs a command where `wine` is, with paths as outside

wine_tree=$(cache_folder)/wine

# Debian's `wine` alone may have the libraries of one width only.
has_system_wine() {
    command -v wine >/dev/null && [ -e /usr/lib/i386-linux-gnu/wine/i386-windows/kernel32.dll ] &&
        [ -e /usr/lib/x86_64-linux-gnu/wine/x86_64-unix/ntdll.so ]
}

# The archive that this machine itself uses, as one base address.
archive_address() {
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' \
        'Codename: bookworm' 'Component: main' | sed -n 1p
}

# The tree's own mounts live in a mount namespace of the command and vanish with it.
in_tree() {
    unshare --mount --fork --kill-child bash -c '
        set -e
        tree=$1 root=$2
        shift 2
        mount --rbind /proc "$tree/proc"
        mount --rbind /dev "$tree/dev"
        for folder in "$root" /tmp; do
            mkdir -p "$tree$folder"
            mount --rbind "$folder" "$tree$folder"
        done
        exec chroot "$tree" /usr/bin/env -C "$PWD" "$@"' in_tree "$wine_tree" "$PWD" "$@"
}

# tree_failed WHAT PATTERN: ends the script; a log that matches tells that the archive was at fault.
tree_failed() {
    tail -n 5 "$wine_tree.log" >&2
    if grep -qE "$2" "$wine_tree.log"; then unavailable "$1"; fi
    fail "could not make $1: $wine_tree.log"
}

make_wine_tree() {
    install_packages debootstrap
    mkdir -p "$wine_tree"
    exec 8>"$wine_tree.lock"
    flock 8
    if [ ! -e "$wine_tree.installed" ]; then
        local archive log=$wine_tree.log proxy
        archive=$(archive_address)
        [ -n "$archive" ] || { apt-get update -q >/dev/null 2>&1 && archive=$(archive_address); }
        [ -n "$archive" ] || unavailable "a Debian 12 archive in this machine's configuration"
        say "making an i386 Debian tree for Wine (about two minutes, once): $wine_tree"
        rm -rf --one-file-system "$wine_tree"
        mkdir -p "$wine_tree"
        proxy=$(apt-config dump --format '%v' Acquire::http::Proxy)
        # In a mount namespace too: an interrupted run leaves nothing mounted.
        ${proxy:+env http_proxy="$proxy"} unshare --mount debootstrap --arch=i386 \
            --variant=minbase bookworm "$wine_tree" "$archive" >"$log" 2>&1 ||
            tree_failed "an i386 Debian tree" 'download|retriev|Release file'
        apt-config dump Acquire::http::Proxy >"$wine_tree/etc/apt/apt.conf.d/90proxy"
        cp /etc/resolv.conf /etc/hosts "$wine_tree/etc/"
        say "installing Wine in it"
        in_tree sh -c 'export DEBIAN_FRONTEND=noninteractive
            dpkg --add-architecture amd64 && apt-get update -q &&
            apt-get install -q -y --no-install-recommends wine wine32 wine64:amd64' \
            >>"$log" 2>&1 ||
            tree_failed "the packages wine, wine32 and wine64" '^(E|W|Err).*(fetch|locate|resolve)'
        touch "$wine_tree.installed"
    fi
    flock -u 8
}

prepare_wine() {
    if has_system_wine; then
        in_wine() { "$@"; }
    else
        [ "$(id -u)" -eq 0 ] || fail "run as root, or install wine32 and wine64 first"
        make_wine_tree
        in_wine() { in_tree "$@"; }
    fi
}
