# What is handed to integrators: a folder with everything, and the zips made of it. Sourced by
# build-windows, whose $build, $bits, $triplet, $sources and $windows_prefix it uses.
#
#   stage_package      fills $staging, build/.../package/Q7_Impressora-VERSION-winBITS
#   make_zip FOLDER    FOLDER.zip beside it, the same bytes from the same content
#   make_installer     $staging-instalador.exe, of what $staging holds
#   stage_relink_kit   fills $staging-religar: our object code, and how it is linked with another Qt

package_folder=$PWD/$build/package
product_version=$(sed -n 's/^#define Q7_VERSION_TEXT "\(.*\)"/\1/p' "$build/version.rc")
staging=$package_folder/Q7_Impressora-$product_version-win$bits

# The moment that stands in what is made: of the last commit.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 315532800)}

# text FILE FOLDER: a text of this repository as Windows programs read it.
text() {
    { case $1 in *.txt) printf '\xEF\xBB\xBF' ;; esac; sed 's/$/\r/' "$1"; } >"$2/${1##*/}"
}

# filled FILE: the text with what this build fills in.
filled() {
    local others=64 compiler=g++-mingw-w64-${cpu//_/-}-posix
    [ "$bits" = 32 ] || others=32
    sed "s/@BITS@/$bits/g; s/@OUTROS@/$others/g; s/@COMPILER@/$compiler/g" "$1"
}

# The import library that Visual C++'s linker takes: its own names for stdcall, ours behind them.
make_msvc_library() {
    local machine=i386 options=(-k)
    [ "$bits" = 32 ] || machine=i386:x86-64 options=()
    install_packages llvm
    llvm-dlltool -m "$machine" "${options[@]}" -d "$build/Q7_Impressora.def" \
        -D Q7_Impressora.dll -l "$staging/lib/Q7_Impressora.lib"
}

copy_licences() {
    install_packages nsis
    local qt=$sources/qtbase-opensource-src file licence library folder=$staging/licencas
    cp "$qt/LICENSE.LGPL3" "$folder/LGPL-3.txt"
    cp "$qt/LICENSE.GPL3" "$folder/GPL-3.txt"
    for file in corelib/codecs/QTSCIICODEC_LICENSE.txt corelib/text/UNICODE_LICENSE.txt \
        3rdparty/{double-conversion,rfc6234,tinycbor,zlib}/LICENSE \
        3rdparty/sha3/{BRG_ENDIAN,CC0}_LICENSE; do
        licence=${file#3rdparty/}
        licence=${licence%.txt}
        cp "$qt/src/$file" "$folder/qt-${licence//\//-}.txt"
    done
    for library in libxml2 zint lodepng cpp-httplib; do
        cp "$sources/$library/debian/copyright" "$folder/$library.txt"
    done
    for library in libasio-dev libsimpleini-dev libcli11-dev nlohmann-json3-dev fonts-dejavu-core \
        nsis; do
        cp "/usr/share/doc/$library/copyright" "$folder/${library%-dev}.txt"
    done
    filled packaging/windows/LICENCAS.txt >"$package_folder/LICENCAS.txt"
    text "$package_folder/LICENCAS.txt" "$folder"
}

# What this build is and holds: folders with what they are for, then every file, the manual's as one.
list_content() {
    local library commit made_with=()
    commit=$(git describe --always --abbrev=12 --exclude='*' --dirty=-alterado 2>/dev/null) ||
        commit=desconhecido
    for library in qtbase-opensource-src libxml2 zint lodepng cpp-httplib; do
        made_with+=("$library $(source_version "$library")")
    done
    cat <<TEXT
Q7_Impressora $product_version para Windows, $bits bits

Feito do commit $commit com estes pacotes do Debian 12:
$({ printf '  %s\n' "${made_with[@]}"
    dpkg-query -W -f '  ${Package} ${Version}\n' "${header_packages[@]}" fonts-dejavu-core \
        "g++-mingw-w64-${cpu//_/-}-posix" "mingw-w64-${cpu//_/-}-dev"; } | LC_ALL=C sort)

bin           a DLL, que não precisa de outro arquivo, e q7.exe, a ferramenta (q7 --ajuda)
lib           bibliotecas de importação: libQ7_Impressora.a para o MinGW, Q7_Impressora.lib para o
              Visual C++
declaracoes   o cabeçalho em C e as declarações para as outras linguagens
exemplos      o mesmo caixa em cada linguagem, e documentos para ele
manual        o manual: abra index.html
config        o que a pasta de dados pode conter, e a chave do registro que a indica
licencas      LICENCAS.txt e os textos das licenças

TEXT
    (cd "$staging" && find . -type f ! -path './manual/*' -printf '%P %s\n' | LC_ALL=C sort |
        awk '{ printf "%-60s %9d bytes\n", $1, $2 }'
        printf 'manual: %d arquivos\n' "$(find manual -type f | wc -l)")
}

stage_package() {
    say "making the package"
    # A zip without COM ports once went out: what opens one must be among the imports.
    "$triplet-objdump" -p "$build/Q7_Impressora.dll" | grep -w SetCommState >/dev/null ||
        fail "no package: the DLL has no COM ports"
    scripts/manual
    rm -rf "$package_folder"
    mkdir -p "$staging"/{bin,lib,config,licencas}
    cp "$build/Q7_Impressora.dll" "$build/tools/q7/q7.exe" "$staging/bin/"
    cp "$build/import/libQ7_Impressora.a" "$staging/lib/"
    make_msvc_library
    cp -r declaracoes "$staging/declaracoes"
    rm -r "$staging/declaracoes/cpp" # for our own tool
    cp include/q7_impressora.h "$staging/declaracoes/c/"
    cp -r examples "$staging/exemplos"
    rm "$staging"/exemplos/{CMakeLists.txt,print_document.c}
    cp -r build/manual/html "$staging/manual"
    for file in packaging/windows/config/*; do text "$file" "$staging/config"; done
    copy_licences
    filled packaging/windows/LEIAME.txt >"$package_folder/LEIAME.txt"
    text "$package_folder/LEIAME.txt" "$staging"
    list_content >"$package_folder/CONTEUDO.txt"
    text "$package_folder/CONTEUDO.txt" "$staging"
}

# What the uninstaller removes: each file of the staged folder, then its folders if they are empty.
list_removal() {
    (cd "$staging" && find . -type f -printf '%P\n' | LC_ALL=C sort | sed 's|^|Delete ?|'
        find . -mindepth 1 -depth -type d -printf '%P\n' | LC_ALL=C sort -r | sed 's|^|RMDir ?|') |
        sed 's|/|\\|g; s|?\(.*\)|"$INSTDIR\\\1"|'
}

make_installer() {
    list_removal >"$package_folder/removal.nsh"
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$product_version" \
        -DNUMBERS="$(sed 's/^0*\(.\)/\1/; s/\.0*\(.\)/.\1/g' <<<"$product_version").0" \
        -DBITS="$bits" -DCONTENT="$staging" -DREMOVAL="$package_folder/removal.nsh" \
        -DOUTPUT="$staging-instalador.exe" packaging/windows/instalador.nsi \
        >"$package_folder/instalador.log" 2>&1 || fail "$(cat "$package_folder/instalador.log")"
    say "made $staging-instalador.exe"
}

stage_relink_kit() {
    local kit=$staging-religar target command file
    rm -rf "$kit"
    mkdir -p "$kit"
    [ ! -e scripts/patches/qtbase-opensource-src.patch ] ||
        cp scripts/patches/qtbase-opensource-src.patch "$kit/"
    printf '%s\n' "${qt_configuration[@]}" >"$kit/qt-configure.txt"
    {
        printf '%s\n' '#!/bin/sh' '# religar.sh PASTA-DO-QT: liga a DLL e o q7.exe com esse Qt.' \
            'set -eu' 'qt=${1:?PASTA-DO-QT}' 'cd "$(dirname "$0")"' 'mkdir -p tools/q7'
        for target in Q7_Impressora.dll tools/q7/q7.exe; do
            command=$(ninja -C "$build" -t commands "$target" | tail -n 1 |
                sed "s|^: && ||; s| && :\$||; s|/usr/bin/||g
                    s|$windows_prefix/lib/*\(libQt5[A-Za-z]*\.a\)|\"\$qt\"/lib/\1|g; s|$windows_prefix/||g")
            for file in $(grep -oE '[^ "]+\.(obj|res|a|def)\b' <<<"$command" | grep -vE 'dll\.a$|\$qt|^/'); do
                [ ! -e "$kit/$file" ] || continue
                install -D -m 644 "$([ -e "$build/$file" ] && echo "$build/$file" ||
                    echo "$windows_prefix/$file")" "$kit/$file"
            done
            printf '%s\n' "$command"
        done
    } >"$kit/religar.sh"
    chmod 755 "$kit/religar.sh"
}

make_zip() {
    local folder=$1
    install_packages zip
    find "$folder" -type f ! -name '*.sh' -exec chmod 644 {} +
    find "$folder" -exec touch --date="@$SOURCE_DATE_EPOCH" {} +
    rm -f "$folder.zip"
    (cd "${folder%/*}" && find "${folder##*/}" -type f | LC_ALL=C sort | TZ=UTC zip -X -q "$folder.zip" -@)
    say "made $folder.zip"
}
