# Debian's source packages, unpacked in the user's cache folder. Sourced after debian.sh.
#
#   fetch_source PACKAGE    its unpacked source in $sources/PACKAGE, changed by
#                           scripts/patches/PACKAGE.patch where there is one; ends the script as
#                           unavailable when the archive does not have it

readonly sources=$(cache_folder)/sources

# Debian's entries of the machine's own configuration, once more as source entries. Files without
# any of Debian's are left out: most others have no sources, and the update would fail on them.
configured_files() {
    apt-get indextargets --format '$(SOURCESENTRY)' 'Created-By: Packages' 'Origin: Debian' |
        sed 's/:[0-9]*$//' | sort -u
}
source_stanzas() {
    configured_files | while read -r file; do
        case $file in
        *.sources) sed 's/^Types:.*/Types: deb-src/' "$file" && echo ;;
        esac
    done
}
source_lines() {
    configured_files | while read -r file; do
        case $file in
        *.sources) ;;
        *) sed -n 's/^[[:space:]]*deb[[:space:]]/deb-src /p' "$file" ;;
        esac
    done
}

has_source_entries() {
    [ -n "$(apt-get indextargets --format '$(URI)' 'Created-By: Sources' 'Origin: Debian')" ]
}

# The lists are fetched once per run, and only when a source has to be fetched at all.
sources_listed=no
list_sources() {
    [ "$sources_listed" = no ] || return 0
    sources_listed=yes
    local own=/etc/apt/sources.list.d/q7-impressora-source
    # An empty list of package targets (a fresh machine) names no entries yet.
    apt-get update -q >/dev/null 2>&1 || say "the package lists could not be refreshed"
    has_source_entries && return 0
    [ "$(id -u)" -eq 0 ] || fail "run as root, or add source entries to the package configuration"
    say "adding source entries to the package configuration: $own.*"
    local stanzas lines
    stanzas=$(source_stanzas)
    lines=$(source_lines)
    [ -z "$stanzas" ] || printf '%s\n' "$stanzas" >"$own.sources"
    [ -z "$lines" ] || printf '%s\n' "$lines" >"$own.list"
    if ! apt-get update -q >/dev/null 2>&1 || ! has_source_entries; then
        # Never leave the machine with entries on which its own updates fail.
        rm -f "$own.sources" "$own.list"
        say "the mirror lists no source packages"
    fi
}

fetch_source() {
    local package=$1 folder=$sources/$1 scratch=$sources/$1.part log=$sources/$1.log
    [ ! -e "$folder" ] || return 0
    list_sources
    say "fetching the source package $package"
    rm -rf "$scratch"
    mkdir -p "$scratch"
    chmod 755 "$scratch"
    (cd "$scratch" && apt-get source -q --download-only --only-source "$package" \
        -o APT::Sandbox::User=root) >"$log" 2>&1 || {
        tail -n 5 "$log" >&2
        if archive_is_at_fault "$log"; then unavailable "the source package $package"; fi
        fail "could not fetch the source package $package"
    }
    dpkg-source --extract "$scratch"/*.dsc "$scratch/unpacked" >>"$log" 2>&1 || {
        tail -n 5 "$log" >&2
        fail "could not unpack the source package $package: $log"
    }
    if [ -e "scripts/patches/$package.patch" ]; then
        patch -d "$scratch/unpacked" -p1 <"scripts/patches/$package.patch" >>"$log" ||
            fail "scripts/patches/$package.patch does not fit: $log"
    fi
    mv "$scratch/unpacked" "$folder" # only whole
    rm -rf "$scratch"
}
