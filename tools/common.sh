# shellcheck shell=bash
# What every command of the project shares; to be sourced. Needs ROOT, the checkout.

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# Of Debian: what building and running needs, and what testing needs besides.
RUN_PACKAGES=(
    cmake ninja-build gcc libc6-dev make python3 dpkg-dev tcl
    g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev libz-mingw-w64-dev
    imagemagick librsvg2-bin icoutils
    wine wine64 fonts-wine fonts-dejavu-core xvfb xdotool
)
TEST_PACKAGES=(g++ googletest clang clang-format libclang-rt-14-dev git zip)

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

# Fetches and unpacks a Debian source package, with Debian's patches, into third_party/NAME; once. The
# system's own package sources stay as they are.
fetch_source() { # NAME
    local target=$ROOT/third_party/$1 apt=$ROOT/build/apt list
    [ ! -d "$target" ] || return 0
    say "Fetching the sources of $1"
    rm -rf "$apt"
    mkdir -p "$apt/parts" "$apt/lists/partial" "$apt/unpacked" "$ROOT/third_party"
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
        [ -f "$list" ] || continue
        sed -E 's/^Types:.*/Types: deb-src/; s/^deb /deb-src /' "$list" >"$apt/parts/$(basename "$list")"
    done
    local options=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$apt/parts"
        -o "Dir::State::Lists=$apt/lists" -o "APT::Sandbox::User=$(id -un)")
    apt-get "${options[@]}" update || fail "The lists of source packages could not be fetched"
    (cd "$apt/unpacked" && apt-get "${options[@]}" source "$1" >"$apt/source.log" 2>&1) || {
        cat "$apt/source.log" >&2
        fail "The sources of $1 could not be fetched"
    }
    mv "$apt/unpacked"/*/ "$target"
    rm -rf "$apt"
}

# What the programs are built on besides Debian's libraries.
fetch_sources() {
    fetch_source minizip
    fetch_source sqlite3
    make_sqlite
}

# SQLite's sources are made into one file, which is compiled with the stand-in device; once.
make_sqlite() {
    local made=$ROOT/third_party/sqlite3/amalgamation log=$ROOT/build/sqlite3.log
    [ ! -f "$made/sqlite3.c" ] || return 0
    say "Preparing the sources of sqlite3"
    rm -rf "$made"
    mkdir -p "$made.part" "$ROOT/build"
    (cd "$made.part" && ../configure --disable-readline --disable-tcl && make sqlite3.c) >"$log" 2>&1 || {
        cat "$log" >&2
        fail "SQLite's one source file could not be made"
    }
    mv "$made.part" "$made"
}

# Configures and builds a target of one preset into build/NAME; Ninja shows the progress. What was asked of
# CMake once holds for the next time too.
build_preset() { # NAME WHAT TARGET CMAKE-OPTIONS...
    say "Building $2"
    local log=$ROOT/build/$1.configure.log
    mkdir -p "$ROOT/build"
    if ! (cd "$ROOT" && cmake --preset "$1" "${@:4}") >"$log" 2>&1; then
        cat "$log" >&2
        fail "CMake could not configure $1"
    fi
    ninja -C "$ROOT/build/$1" "$3" || fail "Building $2 failed"
}
