# What the library and its tools use of others, for Windows: built from Debian's own packages into
# one folder per target of the user's cache. Sourced after debian.sh and sources.sh.
#
#   prepare_target CPU             i686 or x86_64: its compiler, and the variables below
#   build_windows_dependencies     makes $windows_prefix; nothing to do when that is up to date
#
# An interrupted run goes on where it stopped. A part is made anew when what it is made with, its
# source's version or the options given here, has changed.

prepare_target() {
    readonly cpu=$1 triplet=$1-w64-mingw32
    readonly target_folder=$(cache_folder)/windows-$cpu
    readonly windows_prefix=$target_folder/prefix
    install_packages "g++-mingw-w64-${cpu//_/-}-posix" g++ make cmake ninja-build perl dpkg-dev \
        ca-certificates
    mkdir -p "$windows_prefix/include" "$target_folder/logs" "$target_folder/stamps"
}

# logged NAME COMMAND...: a long step, its output kept aside and shown only when it fails.
logged() {
    local log=$target_folder/logs/$1
    shift
    "$@" >"$log" 2>&1 || {
        tail -n 40 "$log" >&2
        fail "failed: $* (whole output: $log)"
    }
}

# source_version PACKAGE: the version of what fetch_source gave.
source_version() { dpkg-parsechangelog -l "$sources/$1/debian/changelog" -S Version; }

# once NAME RECIPE COMMAND...: runs the command unless it has once succeeded with that recipe.
once() {
    local stamp=$target_folder/stamps/$1 recipe=$2
    shift 2
    [ "$(cat "$stamp" 2>/dev/null)" != "$recipe" ] || return 0
    rm -f "$stamp"
    "$@"
    printf '%s' "$recipe" >"$stamp"
}

# ------------------------------------------------------------------ Qt

# Core and Xml, and of Core what is used: the rest would cost time here and room in the DLL. The
# switches for size keep each function apart, so that the linker can leave it out.
readonly qt_configuration=(-opensource -confirm-license -release -static
    -optimize-size -gc-binaries -platform linux-g++ -xplatform win32-g++
    -nomake examples -nomake tests -no-gui -no-widgets -no-dbus -no-opengl -no-openssl
    -qt-zlib -qt-doubleconversion -no-icu -no-pch
    $(printf -- '-no-feature-%s ' network sql testlib concurrent regularexpression big_codecs \
        mimetype topleveldomain timezone itemmodel statemachine animation easingcurve \
        commandlineparser sharedmemory systemsemaphore process filesystemwatcher translation \
        jalalicalendar hijricalendar islamiccivilcalendar))

make_qt() {
    local build=$target_folder/qt parts=(corelib xml winmain moc rcc) part
    say "configuring Qt for Windows"
    rm -rf "$build"
    mkdir -p "$build"
    # It builds qmake first, file by file unless it is told otherwise.
    (cd "$build" && MAKEFLAGS=-j$(nproc) logged qt.configure \
        "$sources/qtbase-opensource-src/configure" -prefix "$windows_prefix" \
        -device-option "CROSS_COMPILE=$triplet-" "${qt_configuration[@]}")
    say "building Qt for Windows (the slow part, once)"
    logged qt.makefiles make -C "$build" -j"$(nproc)" sub-src-qmake_all
    logged qt.make make -C "$build/src" -j"$(nproc)" "${parts[@]/#/sub-}"
    parts=("${parts[@]/#/sub-}")
    logged qt.install make -C "$build/src" "${parts[@]/%/-install_subtargets}"
    logged qt.mkspecs make -C "$build" install_mkspecs sub-qmake-qmake-aux-pro-install_subtargets
    rm -rf "$build"
}

# ------------------------------------------------------------------ libraries

# cross_cmake NAME SOURCE OPTION...: configures a library that is built with CMake, in
# $library_build.
cross_cmake() {
    local name=$1 source=$2
    shift 2
    library_build=$target_folder/$name
    rm -rf "$library_build"
    logged "$name.configure" cmake -S "$source" -B "$library_build" -G Ninja \
        -D CMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64-$cpu.cmake" \
        -D CMAKE_INSTALL_PREFIX="$windows_prefix" -D CMAKE_BUILD_TYPE=MinSizeRel \
        -D CMAKE_C_FLAGS='-D_WIN32_WINNT=0x0601 -ffunction-sections -fdata-sections' "$@"
}

# Schemas and what they rest on, the reader, the writer and HTML; nothing that fetches by itself.
readonly libxml2_parts='HTML OUTPUT PATTERN PUSH READER REGEXPS SAX1 SCHEMAS TREE WRITER'

make_libxml2() {
    local options=() part
    for part in $(sed -n 's/^option(LIBXML2_WITH_\([A-Z0-9_]*\) .*/\1/p' \
        "$sources/libxml2/CMakeLists.txt"); do
        case " $libxml2_parts " in
        *" $part "*) options+=(-D "LIBXML2_WITH_$part=ON") ;;
        *) options+=(-D "LIBXML2_WITH_$part=OFF") ;;
        esac
    done
    # Without threads it still takes those of the compiler's POSIX layer where it finds them.
    cross_cmake libxml2 "$sources/libxml2" -D BUILD_SHARED_LIBS=OFF -D HAVE_PTHREAD_H=0 \
        "${options[@]}"
    logged libxml2.make cmake --build "$library_build"
    logged libxml2.install cmake --install "$library_build" --component development
    rm -rf "$library_build"
}

make_zint() {
    # The configuration puts a file beside the sources, which serve other targets as well.
    cp -a "$sources/zint" "$target_folder/zint-source"
    cross_cmake zint "$target_folder/zint-source" -D ZINT_STATIC=ON -D ZINT_USE_PNG=OFF \
        -D ZINT_USE_QT=OFF
    logged zint.make cmake --build "$library_build" --target zint-static
    cp "$(find "$library_build" -name '*zint*.a')" "$windows_prefix/lib/libzint.a"
    cp "$sources/zint/backend/zint.h" "$windows_prefix/include/"
    rm -rf "$library_build" "$target_folder/zint-source"
}

make_lodepng() {
    local object=$target_folder/lodepng.o
    logged lodepng.make "$triplet-g++-posix" -Os -ffunction-sections -fdata-sections \
        -c "$sources/lodepng/lodepng.cpp" -o "$object"
    rm -f "$windows_prefix/lib/liblodepng.a"
    "$triplet-ar" rcs "$windows_prefix/lib/liblodepng.a" "$object"
    rm "$object"
    cp "$sources/lodepng/lodepng.h" "$windows_prefix/include/"
}

# Header-only libraries: the machine's own packages have them, among headers that are not the
# target's.
readonly header_packages=(libasio-dev libsimpleini-dev libcli11-dev nlohmann-json3-dev)

copy_headers() {
    local package
    for package in "${header_packages[@]}"; do
        dpkg -L "$package" | sed -n 's|^/usr/include/||p' | while read -r header; do
            [ -d "/usr/include/$header" ] ||
                install -D -m 644 "/usr/include/$header" "$windows_prefix/include/$header"
        done
    done
    cp "$sources/cpp-httplib/httplib.h" "$windows_prefix/include/" # Debian's package splits it
}

build_windows_dependencies() {
    # One build at a time: a second run waits for the first and then finds its result.
    exec 9>"$target_folder/lock"
    flock 9
    local package
    mkdir -p "$sources" "$windows_prefix/lib"
    for package in qtbase-opensource-src libxml2 zint lodepng cpp-httplib; do fetch_source "$package"; done
    install_packages "${header_packages[@]}"
    once headers "$(dpkg-query -W "${header_packages[@]}") $(source_version cpp-httplib)" copy_headers
    once libxml2 "$(source_version libxml2) $libxml2_parts" make_libxml2
    once zint "$(source_version zint)" make_zint
    once lodepng "$(source_version lodepng)" make_lodepng
    once qt "$(source_version qtbase-opensource-src) ${qt_configuration[*]}" make_qt
    flock -u 9
}
