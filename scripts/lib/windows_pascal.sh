# A Free Pascal that compiles for 32-bit Windows, from Debian's own packages, which have the compiler
# for this machine and the sources of all others. Sourced after windows_dependencies.sh, whose target
# must have been prepared.
#
#   prepare_pascal                  makes it, in the target's cache folder; a quarter of a minute, once
#   windows_pascal ARGUMENT...      compiles

readonly pascal_folder=$target_folder/pascal

make_pascal() {
    local version source compiler rtl own_units messages options
    version=$(fpc -iV)
    source=/usr/share/fpcsrc/$version compiler=$source/compiler rtl=$source/rtl
    own_units=$(dirname "$(dpkg -L "fp-units-rtl-$version" | grep -m 1 '/rtl/system\.ppu$')")
    messages=$(dpkg -L "fp-compiler-$version" | grep -m 1 '/errore\.msg$')
    say "building Free Pascal for Windows"
    rm -rf "$pascal_folder"
    mkdir -p "$pascal_folder"/{build,units}
    # The compiler's messages, as a part of its source that the package lacks.
    logged pascal.messages fpc -v0 -FU"$pascal_folder/build" -o"$pascal_folder/build/msg2inc" \
        "$compiler/utils/msg2inc.pp"
    (cd "$pascal_folder/build" && logged pascal.texts ./msg2inc "$messages" msg msg)
    logged pascal.compiler fpc -n -v0 -O2 -Sg -di386 -Fu"$own_units" \
        "-Fi$pascal_folder/build" "-Fu$compiler" "-Fi$compiler" \
        "-Fu$compiler/"{i386,x86,systems} "-Fi$compiler/"{i386,x86} \
        -FU"$pascal_folder/build" -o"$pascal_folder/ppcross386" "$compiler/pp.pas"
    options=(-v0 -O2 -Sg "-Fu$rtl/"{win32,win,inc,i386,objpas} "-Fi$rtl/"{inc,i386,win,win32} \
        "-Fi$rtl/"{win/wininc,objpas,objpas/sysutils,objpas/classes} -FU"$pascal_folder/units")
    logged pascal.system windows_pascal "${options[@]}" -Us "$rtl/win32/system.pp"
    logged pascal.units windows_pascal "${options[@]}" "$rtl/win32/buildrtl.pp"
    rm -rf "$pascal_folder/build"
}

windows_pascal() { "$pascal_folder/ppcross386" -n -Twin32 -Fu"$pascal_folder/units" "$@"; }

prepare_pascal() {
    local packages=(fp-compiler fpc-source)
    install_packages "${packages[@]}"
    exec 9>"$target_folder/lock"
    flock 9
    once pascal "$(dpkg-query -W "${packages[@]}")" make_pascal
    flock -u 9
}
