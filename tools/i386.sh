# shellcheck shell=bash
# A 32-bit Debian of our own in build/i386, for its Wine; to be sourced. Needs ROOT, the checkout, common.sh,
# wine.sh and root's rights. The machine's own packages stay as they are: with the 32-bit ones beside them it would
# lose its 64-bit Wine.

I386_DIR=$ROOT/build/i386

# From where the machine has its own packages.
debian_mirror() { # CODENAME
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Component: main' \
        "Codename: $1" | head -n 1
}

# Mounts that are left when the making is broken off go with their namespace, and what it made the next time.
make_i386() {
    [ "$(id -u)" = 0 ] || fail "Changing into a 32-bit Debian takes root's rights"
    quietly unshare --mount true || fail "Changing into a 32-bit Debian takes mounts, which are not allowed here"
    [ ! -d "$I386_DIR/debian" ] || return 0
    local codename mirror new=$I386_DIR/new
    codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
    mirror=$(debian_mirror "$codename")
    [ -n "$mirror" ] || { apt-get -qq update && mirror=$(debian_mirror "$codename"); }
    [ -n "$mirror" ] || fail "The machine's package sources name no Debian $codename"
    say "Making a 32-bit Debian with Wine in build/i386 (some minutes and 1.5 GB, once)"
    rm -rf "$I386_DIR"
    mkdir -p "$I386_DIR"
    unshare --mount debootstrap --arch=i386 --variant=minbase \
        --include=wine,wine32,fonts-wine,fonts-dejavu-core "$codename" "$new" "$mirror" \
        </dev/null >"$I386_DIR/log" 2>&1 || {
        tail -n 20 "$I386_DIR/log" >&2
        fail "The 32-bit Debian could not be made"
    }
    rm -f "$new"/var/cache/apt/archives/*.deb
    mv "$new" "$I386_DIR/debian"
}

# From here on the Wine of wine.sh is the 32-bit one, here and in what is started from here.
use_i386() {
    local command
    make_i386
    mkdir -p "$I386_DIR/bin"
    for command in wine wineboot wineserver; do
        ln -sfn "$ROOT/tools/in_i386.sh" "$I386_DIR/bin/$command"
    done
    export WINE_DIR=$I386_DIR/wine PATH=$I386_DIR/bin:$PATH
}
