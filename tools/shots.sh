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
    local tries=0
    until xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; do
        sleep 0.05
        tries=$((tries + 1))
        [ $tries -lt 400 ] || fail "The window \"$1\" did not appear"
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

# A text of the program in the language that pictures are taken in.
translate() { # TEXT
    local translation=
    [ -z "${LANGUAGE:-}" ] ||
        translation=$(iconv -f utf-16 -t utf-8 "$ROOT/shipped/translations/LumDiary_$LANGUAGE.txt" | tr -d '\r' |
            sed -n "s/^$1|//p")
    printf '%s' "${translation:-$1}"
}

# What any sheet or dialog of the main screen may be called, as a regular expression.
sheet_titles() {
    local titles= title
    for title in General Calendar Task Contact Note Message 'Special event'; do
        titles+="$(translate "$title options")|"
    done
    printf '(%s%s)' "$titles" "$(translate 'Category Icons')"
}

# What is reached from the main screen or from a page and is no page itself: entry and page, name, and the keys
# that lead to it, each with the title it brings up: KEY=TITLE, with "_" for a blank.
GALLERY_DIALOGS=(
    "3:0 layouts_select Tab= Tab= Tab= Tab= Down= Down=Keyboard_layouts"
    "7:0 category_icons_main" "7:0 category_icons_chooser Return=Choose_icon"
    "7:0 category_icons_sources Return=Choose_icon F10=" "7:0 category_icons_colors Tab= Tab= Tab= space="
    "7:0 category_icons_folders Return=Choose_icon F10= Up= Return=Choose_folder"
)

# The same for every page, as the program's own tables have them. Some are only reached by turning to them.
gallery_pages() {
    local entry page how name turns
    "$ROOT/tools/describe_program.sh" pages | while read -r entry page how name; do
        turns=
        [ "$how" = open ] || for (( ; page > 0; --page)); do turns+=' ctrl+Tab='; done
        echo "$entry:$page $name$turns"
    done
}

picture_page() { # FOLDER PAGE NAME KEYS...
    local folder=$1 page=$2 name=$3 key
    shift 3
    start_program "$STAGE" "-P$page"
    await_window "$SHEETS"
    for key in "$@"; do
        press "${key%%=*}"
        key=${key#*=}
        [ -z "$key" ] || await_window "$(translate "${key//_/ }")"
    done
    take_picture "$folder/$name.png"
    close_program
}

# Every page on every screen, in English and in each language there is a translation for.
run_gallery() { # OUTPUT
    rm -rf "$1"
    local file pages
    mapfile -t pages < <(gallery_pages)
    [ ${#pages[@]} -gt 0 ] || fail "The program told of no pages"
    pages+=("${GALLERY_DIALOGS[@]}")
    LANGUAGE= take_gallery "$1"
    for file in "$ROOT"/shipped/translations/LumDiary_*.txt; do
        LANGUAGE=$(basename "$file" .txt)
        LANGUAGE=${LANGUAGE#LumDiary_} take_gallery "$1"
    done
    write_gallery_index "$1"
    say "The pictures are in ${1#"$ROOT"/}"
}

take_gallery() { # OUTPUT
    local screen name dpi size page folder
    SHEETS=$(sheet_titles)
    for screen in "portrait 96 240x320" "landscape 96 320x240" "double 192 480x640"; do
        read -r name dpi size <<<"$screen"
        folder=$1/$name${LANGUAGE:+-$LANGUAGE}
        say "Taking pictures of every page at $size pixels${LANGUAGE:+ in the language $LANGUAGE}"
        open_stage "gallery-$name" "$dpi" "$size"
        [ -z "$LANGUAGE" ] ||
            cp "$ROOT/shipped/translations/LumDiary_$LANGUAGE.txt" "$STAGE/Program Files/Lum Diary/LumDiary_en.txt"
        start_program "$STAGE"
        await_window "$(translate 'Lum Diary Options')"
        take_picture "$folder/main_screen.png"
        quietly wine "$BIN/device_send.exe" command 57664
        await_window "$(translate About)"
        take_picture "$folder/about.png"
        close_program
        for page in "${pages[@]}"; do
            # shellcheck disable=SC2086  # Page, name and keys are words of it.
            picture_page "$folder" $page
        done
        close_stage
    done
}

write_gallery_index() { # OUTPUT
    {
        echo '<!DOCTYPE html><title>Every page</title>'
        echo '<style>body{font-family:sans-serif}figure{display:inline-block;margin:8px}img{border:1px solid #888}</style>'
        local screen picture
        for screen in "$1"/*/; do
            screen=$(basename "$screen")
            echo "<h1>$screen</h1>"
            for picture in "$1/$screen"/*.png; do
                picture=$screen/$(basename "$picture")
                echo "<figure><img src=\"$picture\"><figcaption>$picture</figcaption></figure>"
            done
        done
    } >"$1/index.html"
}
