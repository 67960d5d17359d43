# Shared by the scripts that build for this machine. Sourced after debian.sh.

readonly library_packages=(cmake ninja-build g++ qtbase5-dev libasio-dev libsimpleini-dev
    libxml2-dev)
readonly printer_packages=(libzint-dev liblodepng-dev libfreetype-dev libcli11-dev
    libcpp-httplib-dev nlohmann-json3-dev fonts-dejavu-core)
readonly test_packages=(castxml libgtest-dev libbenchmark-dev libzbar-dev libxml2-utils
    chromium)

# configure PRESET OPTION...: quiet unless it fails.
configure() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! cmake --preset "$preset" "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        fail "could not configure $preset"
    fi
    grep -E '^-- Feature' "$log" || true
    rm -f "$log"
}
