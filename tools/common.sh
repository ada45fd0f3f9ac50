# shellcheck shell=bash
# What every command of the project shares; to be sourced. Needs ROOT, the checkout.

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# The screens that devices had: pixels, and dots per inch.
SCREENS=(
    240x320@96 320x240@96 240x240@96 240x400@96 400x240@96
    320x320@128
    480x640@192 640x480@192 480x480@192 480x800@192 800x480@192
)

# Of some screens those of a density, without it.
sizes_at() { # DPI SCREENS...
    local dpi=$1 screen
    shift
    for screen in "$@"; do [ "${screen#*@}" != "$dpi" ] || printf '%s ' "${screen%@*}"; done
}

# The smallest display that has room for each of some screens.
room_for() { # WIDTHxHEIGHT...
    local size side longest=0
    for size in "$@"; do
        for side in "${size%x*}" "${size#*x}"; do [ "$side" -le $longest ] || longest=$side; done
    done
    echo "${longest}x$longest"
}

# English and the languages there is a translation for.
languages() {
    local file
    echo en
    for file in "$ROOT"/shipped/translations/LumDiary_*.txt; do
        file=$(basename "$file" .txt)
        echo "${file#LumDiary_}"
    done
}

# A language as the user says it: one there is, or a file, of which this is the whole path.
language_named() { # LANGUAGE-OR-FILE
    if languages | grep -xF -e "$1" >/dev/null; then
        echo "$1"
    elif [ -f "$1" ]; then
        realpath "$1"
    else
        fail "There is neither a language nor a file $1; there are $(languages | paste -sd ' ')"
    fi
}

# The translation's file; none for English.
translation_of() { # LANGUAGE
    case $1 in
        en) ;;
        /*) echo "$1" ;;
        *) echo "$ROOT/shipped/translations/LumDiary_$1.txt" ;;
    esac
}

# Of Debian: what building needs, what running needs besides, what a display of our own and pictures of it need,
# and what testing needs.
BUILD_PACKAGES=(
    cmake ninja-build python3 librsvg2-bin libcli11-dev nlohmann-json3-dev
    g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev libz-mingw-w64-dev
)
RUN_PACKAGES=(wine wine64 fonts-wine fonts-dejavu-core xdotool)
SCREEN_PACKAGES=(xvfb imagemagick)
TEST_PACKAGES=(
    "${SCREEN_PACKAGES[@]}" g++ googletest clang clang-format libclang-rt-14-dev zip zlib1g-dev
    g++-mingw-w64-i686-posix mingw-w64-i686-dev
)
# What diarykit needs to be built for this machine.
KIT_PACKAGES=(cmake ninja-build g++ zlib1g-dev libcli11-dev nlohmann-json3-dev)
# What the 32-bit Debian is made with.
I386_PACKAGES=(debootstrap)

# Installs what is missing. Quick when nothing is.
install_packages() { # PACKAGES...
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "Not root and no sudo; install yourself: ${missing[*]}"
        root=(sudo)
    fi
    command -v apt-get >/dev/null || fail "This needs Debian's packages: ${missing[*]}"
    say "Installing ${missing[*]}"
    "${root[@]}" apt-get -qq update || fail "The package lists could not be fetched"
    for package in "${missing[@]}"; do
        apt-cache show "$package" >/dev/null 2>&1 || fail "There is no package $package here"
    done
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends \
        "${missing[@]}" >/dev/null || fail "Could not install ${missing[*]}"
}

# Fetches files of a Debian source package as its authors left them, once: the last of them says that all are
# there. Debian's patches change none of those that are used. The system's own package sources stay as they are.
fetch_source() { # PACKAGE FOLDER-IN-IT TARGET FILES...
    local package=$1 folder=$2 target=$ROOT/third_party/$3 apt=$ROOT/build/apt list file
    shift 3
    [ ! -f "$target/${!#}" ] || return 0
    say "Fetching the sources of $package"
    rm -rf "$apt"
    mkdir -p "$apt/parts" "$apt/lists/partial" "$apt/unpacked" "$target"
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
        [ -f "$list" ] || continue
        sed -E 's/^Types:.*/Types: deb-src/; s/^deb /deb-src /' "$list" >"$apt/parts/$(basename "$list")"
    done
    local options=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$apt/parts"
        -o "Dir::State::Lists=$apt/lists" -o "APT::Sandbox::User=$(id -un)")
    apt-get "${options[@]}" update || fail "The lists of source packages could not be fetched"
    (cd "$apt" && apt-get "${options[@]}" --download-only source "$package" &&
        cd unpacked && cmake -E tar xf ../"$package"_*.orig.tar.*) >"$apt/source.log" 2>&1 || {
        cat "$apt/source.log" >&2
        fail "The sources of $package could not be fetched"
    }
    for file in "$@"; do
        mv "$apt"/unpacked/*/"$folder/$file" "$target/" || fail "The sources of $package hold no $file"
    done
    rm -rf "$apt"
}

# What the programs are built on besides Debian's libraries. SQLite's sources come as one file with Fossil's; its
# own package would have them made from parts, which takes a compiler for this machine, make and Tcl.
fetch_sources() {
    fetch_source minizip . minizip ioapi.h ioapi.c unzip.h unzip.c
    fetch_source fossil extsrc sqlite3/amalgamation sqlite3.h sqlite3.c
}

# Configures one preset in build/NAME. What was asked of CMake once holds for the next time too.
configure_preset() { # NAME CMAKE-OPTIONS...
    local log=$ROOT/build/$1.configure.log
    mkdir -p "$ROOT/build"
    if ! (cd "$ROOT" && cmake --preset "$@") >"$log" 2>&1; then
        cat "$log" >&2
        fail "CMake could not configure $1"
    fi
}

# Builds targets of a configured preset; Ninja shows the progress.
build_target() { # NAME WHAT TARGETS...
    say "Building $2"
    ninja -C "$ROOT/build/$1" "${@:3}" || fail "Building $2 failed"
}
