# shellcheck shell=bash
# The archive for Windows; to be sourced after wine.sh. Needs ROOT, the checkout, and BIN, the folder of the built
# programs.

# The texts that the program's own parts and what is linked to them want to be passed on.
copy_licenses() { # FOLDER
    local name file
    mkdir -p "$1"
    cp "$ROOT/LICENSE" "$1/Lum Diary Settings.txt"
    while read -r name file; do
        cp "$file" "$1/$name.txt" || fail "The license of $name is not in $file"
    done <<'END'
mingw-w64 /usr/share/doc/mingw-w64-x86-64-dev/copyright
libgcc-libstdc++ /usr/share/doc/gcc-mingw-w64-base/copyright
GPL-3 /usr/share/common-licenses/GPL-3
zlib /usr/share/doc/libz-mingw-w64-dev/copyright
CLI11 /usr/share/doc/libcli11-dev/copyright
nlohmann-json /usr/share/doc/nlohmann-json3-dev/copyright
END
    # These two have theirs at the front of their headers.
    first_comment "$ROOT/third_party/minizip/unzip.h" >"$1/minizip.txt"
    first_comment "$ROOT/third_party/sqlite3/amalgamation/sqlite3.h" | sed '/^\*\*\*\*/q' >"$1/sqlite.txt"
}

first_comment() { # FILE
    sed '/\*\//q' "$1"
}

# Leaves the archive in OUTPUT and says where.
make_package() { # OUTPUT
    local name stage library version
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$ROOT/build/windows/CMakeCache.txt")
    name=LumDiarySettings-$version
    stage=$ROOT/build/package/$name
    rm -rf "$ROOT/build/package"
    mkdir -p "$stage/program" "$stage/translations" "$1"
    # A device as one is made here, but for what it may change itself. English, as LumDiary.cmd chooses the language.
    DEVICE_LANGUAGE='' furnish_device "$stage/files" "$BIN" 96
    mv "$stage/files/device.ini" "$stage/program/"
    cp "$ROOT/pocketpc/furnishing/owner.txt" "$stage/program/"
    cp "$BIN"/{DiarySettings,today,devicectl,device_send,diarykit}.exe "$stage/program/"
    for library in coredll aygshell cemapi commctrl note_prj richink inkx any_library; do
        cp "$BIN/$library.dll" "$stage/program/"
    done
    cp "$ROOT"/shipped/translations/*.txt "$ROOT"/shipped/help/LumDiary_*.htm "$stage/translations/"
    cp "$ROOT/shipped/release/LumDiary.cmd" "$stage/"
    sed "s/VERSION/$version/" "$ROOT/shipped/release/README.txt" >"$stage/README.txt"
    copy_licenses "$stage/licenses"
    rm -f "$1/$name.zip"
    (cd "$ROOT/build/package" && cmake -E tar cf "$1/$name.zip" --format=zip "$name") ||
        fail "The archive could not be written"
    say "The package is ${1#"$ROOT"/}/$name.zip"
}
