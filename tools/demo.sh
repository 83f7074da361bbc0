# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The sample application, driven like a person with a pen would drive it. The
# scenario is samples/fieldbook/demo.sh, written with the functions of this file.

demo_shots=$build/demo
demo_language=() # what tells the sample its language, if it is not to be Japanese
app_pid=
pen_pause=0.05

# run_demo [en]
run_demo() {
    demo_shots=$build/demo${1:+-$1}
    demo_language=(${1:+"/$1"})
    if [[ -n ${DISPLAY:-} ]]; then
        show_sample
    else
        drive_sample
    fi
}

show_sample() {
    close_when_over
    open_wine
    echo 'the fieldbook is on your screen; close it with its X to end'
    in_wine wine "$build/fieldbook/fieldbook.exe" "${demo_language[@]}" >"$build/demo.log" 2>&1 </dev/null
}

drive_sample() {
    open_screen
    rm -rf "$demo_shots"
    mkdir -p "$demo_shots"
    # shellcheck source=/dev/null
    source "$root/samples/fieldbook/demo.sh"
    stop_app
    printf 'pictures in %s\n' "${demo_shots#"$root"/}"
}

# As a customer would: against the installed library only, in a project of its own. Builds all
# of it with its tests, or one TARGET.
build_sample() {
    rm -rf "$build/win64/install"
    logged install cmake --install "$build/win64"
    logged configure-fieldbook cmake -S "$root/samples/fieldbook" -B "$build/fieldbook" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/x86_64-w64-mingw32.cmake" \
        -DCMAKE_PREFIX_PATH="$build/win64/install" -DCMAKE_BUILD_TYPE=Release -DFIELDBOOK_TESTS=ON
    logged build-fieldbook ninja -C "$build/fieldbook" -j"$(nproc)" "$@"
}

# The classic samples and the test that drives them, built like the sample.
build_programs() {
    logged configure-programs cmake -S "$root/tests/programs" -B "$build/programs" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/x86_64-w64-mingw32.cmake" \
        -DCMAKE_PREFIX_PATH="$build/win64/install" -DPROGRAMS_GOOGLETEST="$build/win64/lib" -DCMAKE_BUILD_TYPE=Release
    logged build-programs ninja -C "$build/programs" -j"$(nproc)"
}

# start_app EXE ARGUMENTS...: EXE is a path; the installed DLLs are found.
start_app() {
    local before
    [[ -f $1 ]] || die "there is no program $1"
    before=$(screen_sum)
    WINEPATH="Z:${build//\//\\}\\win64\\install\\bin" LC_ALL=$device_locale \
        wine "$@" >"$build/demo.log" 2>&1 </dev/null 9>&- &
    app_pid=$!
    settle "$before" 30
}

stop_app() {
    [[ -n $app_pid ]] || return 0
    kill "$app_pid" 2>/dev/null || true
    wait "$app_pid" 2>/dev/null || true
    app_pid=
}

# wait_exit: the application closes by itself; its failure is the demo's failure.
wait_exit() {
    local pid=$app_pid
    app_pid=
    wait_until 10 has_ended "$pid" || die 'the application does not close'
    wait "$pid" || die "the application failed, see build/demo.log"
}

has_ended() {
    ! kill -0 "$1" 2>/dev/null
}

# tap X Y: pixels of the screen.
tap() {
    act pen_tap "$1" "$2"
}

# hold X Y: a press of a second, the gesture for a context menu.
hold() {
    act pen_hold "$1" "$2"
}

# drag X1 Y1 X2 Y2
drag() {
    act pen_drag "$@"
}

# type TEXT: into the focused field (the shell's own "type" is not needed here).
type() {
    act xdotool type --delay 30 -- "$1"
}

# key NAME...: "Return", "Tab", "alt+F4"
key() {
    act xdotool key --delay 30 "$@"
}

# wait_window TITLE: until a window with this title is visible.
wait_window() {
    wait_until 15 window_is_visible "$1" || die "no window \"$1\" on the screen"
    settle '' 0
}

window_is_visible() {
    app_is_alive
    LC_ALL=$device_locale xdotool search --onlyvisible --name "$1" >/dev/null 2>&1
}

# shot NAME: the screen as build/demo/NAME.png
shot() {
    app_is_alive
    import -window root "$demo_shots/$1.png"
    printf '  %s\n' "$1"
}

pen_tap() {
    xdotool mousemove "$1" "$2" sleep "$pen_pause" mousedown 1 sleep "$pen_pause" mouseup 1
}

pen_hold() {
    xdotool mousemove "$1" "$2" sleep "$pen_pause" mousedown 1 sleep 1 mouseup 1
}

pen_drag() {
    local step steps=8 moves=()
    for ((step = 1; step <= steps; ++step)); do
        moves+=(mousemove "$(($1 + ($3 - $1) * step / steps))" "$(($2 + ($4 - $2) * step / steps))" sleep "$pen_pause")
    done
    xdotool mousemove "$1" "$2" sleep "$pen_pause" mousedown 1 sleep "$pen_pause" "${moves[@]}" mouseup 1
}

# Does something to the running application and lets the screen follow.
act() {
    local before
    app_is_alive
    before=$(screen_sum)
    "$@"
    settle "$before" 1
}

app_is_alive() {
    if [[ -z $app_pid ]] || has_ended "$app_pid"; then
        die 'the application is not running, see build/demo.log'
    fi
}

# settle BEFORE SECONDS: until the screen differs from BEFORE, at most SECONDS (an
# action may change nothing), and then until it has stopped changing.
settle() {
    local last now tries
    wait_until "$2" screen_differs "$1" || true
    last=$(screen_sum)
    for ((tries = 0; tries < 25; ++tries)); do
        sleep 0.15
        now=$(screen_sum)
        [[ $now != "$last" ]] || return 0
        last=$now
    done
}

screen_differs() {
    [[ $(screen_sum) != "$1" ]]
}

screen_sum() {
    import -window root -depth 8 rgb:- | cksum
}
