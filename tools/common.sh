# shellcheck shell=bash
# What every command of the project shares; to be sourced. Needs ROOT, the checkout.

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# Build and test need these of Debian, and nothing else.
PACKAGES=(
    cmake ninja-build g++ make python3 file git
    g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev libz-mingw-w64-dev googletest
    clang clang-format libclang-rt-14-dev
    wine wine64 fonts-wine fonts-dejavu-core xvfb xdotool
    imagemagick librsvg2-bin icoutils
)

# Installs what is missing. Quick when nothing is.
install_packages() {
    local missing=() package
    for package in "${PACKAGES[@]}"; do
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

# Configures and builds one preset into build/NAME; Ninja shows the progress.
build_preset() { # NAME WHAT
    say "Building $2"
    local log=$ROOT/build/$1.configure.log
    mkdir -p "$ROOT/build"
    if ! (cd "$ROOT" && cmake --preset "$1") >"$log" 2>&1; then
        cat "$log" >&2
        fail "CMake could not configure $1"
    fi
    ninja -C "$ROOT/build/$1" || fail "Building $2 failed"
}
