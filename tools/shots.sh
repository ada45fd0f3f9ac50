# shellcheck shell=bash
# Driving the program on a virtual display and taking pictures of it; functions to be sourced after
# wine.sh. Needs BIN, the folder of the built programs.

start_today() { # DEVICE
    (cd "$1" && quietly wine "$BIN/today.exe") &
    TODAY_PID=$!
    await_window Desktop
}

start_program() { # DEVICE ARGUMENTS...
    local device=$1
    shift
    (cd "$device" && quietly wine "$BIN/DiarySettings.exe" "$@") &
    PROGRAM_PID=$!
}

await_window() { # TITLE
    await_success "The window \"$1\"" xdotool search --onlyvisible --name "^$1\$"
}

# Of the program, in whatever language. The lists that it drops down to write down its texts have no title.
program_titles() {
    xdotool search --onlyvisible --class '^diarysettings.exe$' getwindowname %@ | grep .
}

await_program() {
    await_success "The program" program_titles
}

await_success() { # WHAT COMMAND...
    local what=$1 tries=0
    shift
    until "$@" >/dev/null 2>&1; do
        sleep 0.05
        tries=$((tries + 1))
        [ $tries -lt 400 ] || fail "$what did not appear"
    done
}

# Waits until the screen has stopped changing.
settle() {
    local previous='' current=''
    for _ in $(seq 40); do
        sleep 0.15
        current=$(import-im6.q16 -display "$DISPLAY" -window root -depth 8 rgb:- | md5sum)
        [ "$current" != "$previous" ] || break
        previous=$current
    done
}

take_picture() { # FILE
    settle
    mkdir -p "$(dirname "$1")"
    import-im6.q16 -display "$DISPLAY" -window root -crop "$SCREEN_SIZE+0+0" +repage "$1"
}

# By keys a picture does not depend on where controls are.
press() { # KEYS...
    local key
    for key in "$@"; do
        settle
        xdotool key "$key"
    done
}

close_program() {
    quietly wine "$BIN/device_send.exe" close
    wait "$PROGRAM_PID" || true
}

# Some of the owner's categories have icons.
give_icons() { # INSTALLATION
    mkdir -p "$1/Icons"
    local category
    for category in Business=briefcase Personal=heart Holiday=suitcase Birthday=birthday Work%CHome=house; do
        cp "$1/IconSet/${category#*=}.bmp" "$1/Icons/${category%=*}.bmp"
    done
}

# A fresh device on a display of its own, for the length of one picture-taking.
open_stage() { # NAME DPI SIZE
    STAGE=$ROOT/build/stage/$1
    rm -rf "$STAGE" "${WINE_DIR:?}/$1"
    furnish_device "$STAGE" "$BIN" "$2"
    give_icons "$STAGE/Program Files/Lum Diary"
    SCREEN_SIZE=$3
    start_display "$3"
    start_session "$1" "$2" "$STAGE"
    set_screen "$STAGE" "$3"
    trap 'end_session; end_display' EXIT
    start_today "$STAGE"
}

close_stage() {
    end_session
    end_display
    trap - EXIT
    rm -rf "${WINE_DIR:?}/$(basename "$STAGE")" "$STAGE"
}

product_values() { # NAMES...
    local name
    for name in "$@"; do
        wine reg query 'HKCU\Software\PocketPC Devices\Default\HKEY_LOCAL_MACHINE\Software\Lum Software House\Lum Diary' \
            /v "$name" </dev/null 2>/dev/null | tr -d '\r' | grep "  $name " || echo "    $name is not there"
    done
}

run_demo() { # OUTPUT
    rm -rf "$1"
    open_stage demo 96 240x320
    local values=(CalendarShowTasks CalendarShowOverdueTasks App_TaskShowMultiday)
    say "The registry before"
    product_values "${values[@]}"
    say "Starting the program"
    start_program "$STAGE"
    await_window 'Lum Diary Options'
    take_picture "$1/1_main_screen.png"
    say "Opening Calendar"
    press c Return
    await_window 'Calendar options'
    take_picture "$1/2_calendar.png"
    say "Turning to the tasks page"
    press ctrl+Tab ctrl+Tab
    take_picture "$1/3_tasks_page.png"
    say "Clearing \"Show tasks in the calendar\""
    press space
    take_picture "$1/4_cleared.png"
    say "Saying ok"
    press Return
    take_picture "$1/5_after_ok.png"
    say "Closing the program"
    close_program
    take_picture "$1/6_today.png"
    say "The registry after"
    product_values "${values[@]}"
    say "What the plug-in received"
    sed 's/^/    /' "$STAGE/today.log"
    close_stage
    say "Pictures of each step are in ${1#"$ROOT"/}"
}

# Pictures of every page and dialog, of one started device for each density and language: in English on every
# screen, in each language there is a translation for on some, or with ALL=1 on every one. DEVICE_LANGUAGE leaves the
# other languages out.
run_gallery() { # OUTPUT
    rm -rf "$1"
    local language languages=("${DEVICE_LANGUAGE:-}") some=(240x320@96)
    [ -n "${languages[0]}" ] || mapfile -t languages < <(languages)
    [ -z "${ALL:-}" ] || some=("${SCREENS[@]}")
    for language in "${languages[@]}"; do
        if [ "$language" = en ]; then
            take_gallery "$1" en "${SCREENS[@]}"
        else
            take_gallery "$1" "$language" "${some[@]}"
        fi
    done
    say "Making the pictures' files smaller"
    python3 "$ROOT/tools/gallery.py" "$1"
    say "The pictures are in ${1#"$ROOT"/}; index.html shows them side by side"
}

take_gallery() { # OUTPUT LANGUAGE SCREENS...
    local DEVICE_LANGUAGE=$2 output dpi sizes
    output=$1/$(basename "$2" .txt)
    shift 2
    for dpi in 96 128 192; do
        read -ra sizes <<<"$(sizes_at "$dpi" "$@")"
        [ ${#sizes[@]} -gt 0 ] || continue
        say "Taking pictures in the language $DEVICE_LANGUAGE at $dpi dots per inch: ${sizes[*]}"
        open_stage gallery "$dpi" "$(room_for "${sizes[@]}")"
        mkdir -p "$output"
        (cd "$STAGE" && wine "$BIN/walk.exe" "Z:$(realpath "$output")" "${sizes[@]}" </dev/null) ||
            fail "Not every page could be opened"
        close_stage
    done
}
