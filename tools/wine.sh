# shellcheck shell=bash
# Wine prefixes, displays and device folders, as functions to be sourced. Needs ROOT, the checkout.
#
# A prefix takes seconds to make, so one template per density is made once and cloned. A session needs its
# display from the start, and a server that stays, or every program would wait for the server's services.

WINE_DIR=${WINE_DIR:-$ROOT/build/wine}
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=,winemenubuilder.exe=d" LC_ALL=C.UTF-8
export FONTCONFIG_FILE=$ROOT/tools/fonts.conf

# Changes with what make_template does, so that an older template is made anew.
TEMPLATE_VERSION=4

quietly() { "$@" </dev/null >/dev/null 2>&1; }

reg_add() { # KEY NAME TYPE DATA
    quietly wine reg add "$1" /v "$2" /t "$3" /d "$4" /f
}

make_template() {
    local template=$WINE_DIR/template-96 fonts=/usr/share/wine/fonts
    [ "$(cat "$WINE_DIR/version" 2>/dev/null)" = "$TEMPLATE_VERSION" ] && return
    say "Making the Wine prefix (some seconds, once)"
    rm -rf "$WINE_DIR"
    mkdir -p "$WINE_DIR/home"
    export WINEPREFIX=$template
    # Documents, Desktop and the like are links into the home folder.
    HOME=$WINE_DIR/home quietly wineboot -i
    quietly wineserver -w
    # The device's system font, and the symbols of check boxes and scroll bars. The outlines of the bold face
    # are not bold at these sizes; without it Wine emboldens the regular one.
    cp "$fonts"/{tahoma,marlett,symbol}.ttf "$template/drive_c/windows/Fonts/"
    quietly wineserver -p
    # Without a window manager Wine waits whenever a managed window goes.
    reg_add 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
    reg_add 'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive REG_SZ 0
    # A crash ends the program at once instead of asking.
    reg_add 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
    quietly wineserver -k
    quietly wineserver -w
    local dpi
    for dpi in 128 192; do
        clone_prefix "$template" "$WINE_DIR/template-$dpi"
        export WINEPREFIX=$WINE_DIR/template-$dpi
        quietly wineserver -p
        reg_add 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$dpi"
        quietly wineserver -k
        quietly wineserver -w
    done
    echo "$TEMPLATE_VERSION" >"$WINE_DIR/version"
}

clone_prefix() { # FROM TO: shares the system's files, which nobody writes, and copies the registry.
    rm -rf "$2"
    cp -al "$1" "$2"
    cp --remove-destination "$1"/*.reg "$2/"
    cp -a --remove-destination "$1/dosdevices/." "$2/dosdevices/"
}

# A display that has room for a screen either way up.
display_size() { # WIDTHxHEIGHT
    local longer=$((${1%x*} > ${1#*x} ? ${1%x*} : ${1#*x}))
    echo "${longer}x$longer"
}

start_display() { # WIDTHxHEIGHT
    local number=$WINE_DIR/display-$$
    Xvfb -displayfd 3 -screen 0 "$(display_size "$1")x24" -nolisten tcp 3>"$number" </dev/null >/dev/null 2>&1 &
    XVFB_PID=$!
    local tries=0
    until [ -s "$number" ]; do
        sleep 0.05
        tries=$((tries + 1))
        [ $tries -lt 200 ] || fail "No virtual display could be started"
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm -f "$number"
}

start_session() { # NAME DPI DEVICE: a clone of its own with the device as drive P:
    export WINEPREFIX=$WINE_DIR/$1
    [ -d "$WINEPREFIX" ] || clone_prefix "$WINE_DIR/template-$2" "$WINEPREFIX"
    ln -sfn "$(realpath "$3")" "$WINEPREFIX/dosdevices/p:"
    quietly wineserver -p
    reg_add 'HKCU\Software\PocketPC Devices\Default\HKEY_LOCAL_MACHINE\SOFTWARE\Apps\Lum Diary' \
        InstallDir REG_SZ '\Program Files\Lum Diary'
    reg_add 'HKCU\Software\PocketPC Devices\Default\HKEY_LOCAL_MACHINE\Drivers\Display\GPE' \
        LogicalPixelsX REG_DWORD "$2"
    furnish_owner "$3"
}

# The upper left part of the display becomes the device's screen.
set_screen() { # DEVICE WIDTHxHEIGHT
    (cd "$1" && wine "$BIN/devicectl.exe" screen "$2" </dev/null) || fail "The screen could not be set"
}

# What the device's owner keeps on it, as far as it is not there yet, and what FURNISH_WITH names besides:
# scripts of pocketpc/furnishing. Needs BIN.
furnish_owner() { # DEVICE
    local script
    for script in owner ${FURNISH_WITH:-}; do
        (cd "$1" && wine "$BIN/devicectl.exe" furnish - <"$ROOT/pocketpc/furnishing/$script.txt") ||
            fail "The device could not be furnished"
    done
}

end_session() {
    quietly wineserver -k || true
    quietly wineserver -w || true
}

end_display() {
    [ -z "${XVFB_PID:-}" ] || kill "$XVFB_PID" 2>/dev/null || true
    XVFB_PID=
}

# Whatever the language, the program reads LumDiary_en.txt. The help comes along: LumDiary_fr.htm for LumDiary_fr.txt,
# or in English where there is none. DEVICE_LANGUAGE chooses, and the device keeps it; what was in the file before,
# perhaps written by hand, lies beside it then.
install_language() { # DEVICE INSTALLATION
    local kept=$1/.language translation=$2/LumDiary_en.txt language file help
    language=$(cat "$kept" 2>/dev/null || true)
    if [ "${DEVICE_LANGUAGE:-$language}" != "$language" ]; then
        language=$DEVICE_LANGUAGE
        echo "$language" >"$kept"
        [ ! -f "$translation" ] || mv -f "$translation" "$translation.before"
        rm -f "$2/LumDiary.htm"
    fi
    file=$(translation_of "${language:-en}")
    [ -z "$file" ] || cp -u "$file" "$translation" || fail "The language of this device is gone; see ./run --help"
    help=$ROOT/shipped/help/$(basename "$file" .txt).htm
    [ -f "$help" ] || help=$ROOT/shipped/help/LumDiary.htm
    cp -u "$help" "$2/LumDiary.htm"
}

# A device: the folders and files that any device has. What the build makes is brought up to date.
# DEVICE_VERSION chooses another version of the system for a new one.
furnish_device() { # DEVICE BIN DPI
    local install="$1/Program Files/Lum Diary"
    mkdir -p "$install" "$1/Windows" "$1/My Documents"
    cp -u "$2/DiaryRes.Dll" "$install/"
    install_language "$1" "$install"
    cp -ru "$ROOT/shipped/help/pictures" "$install/"
    cp -ru "$2/Skins" "$install/"
    # The icons are bitmaps, of the screen's density.
    cp -u "$2/icons.dat" "$install/"
    rm -rf "$install/IconSet"
    cp -r "$2/iconset/$3" "$install/IconSet"
    cp -u "$2/today_picture/$3.bmp" "$1/Windows/today.bmp"
    cp -u "$2/PegHelp.exe" "$2/coredll.dll" "$2"/outres/*.dll "$1/Windows/"
    [ -f "$1/device.ini" ] ||
        printf '[device]\r\nhive=Default\r\nversion=%s\r\nplatform=PocketPC\r\n' \
            "${DEVICE_VERSION:-5.2.19208}" >"$1/device.ini"
}
