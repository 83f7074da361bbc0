# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The device's screen: a virtual X display of 240 x 320 and a private Wine prefix; or another one.

device_screen=240x320
screen_size=$device_screen
screen_dpi=96
first_prefix=$build/wine
prefix=$first_prefix
system_font=/usr/share/wine/fonts/vgasys.fon
screen_pid=
opened=() # process and prefix of each screen

# A screen of the run's own, also on a desktop: the same size and depth
# everywhere, and no window manager that places the windows. A second one of another NAME has a
# Wine prefix of its own, and can have another SIZE and resolution (pixels per inch).
# open_screen [NAME [SIZE [DPI]]]
open_screen() {
    close_when_over
    local number=$build/display${1:-}
    prefix=$first_prefix${1:-}
    screen_size=${2:-$screen_size}
    screen_dpi=${3:-$screen_dpi}
    : >"$number"
    Xvfb -displayfd 3 -screen 0 "${screen_size}x24" -nolisten tcp -noreset \
        3>"$number" >"$build/xvfb${1:-}.log" 2>&1 9>&- &
    screen_pid=$!
    opened+=("$screen_pid $prefix")
    wait_until 20 screen_is_up "$number" || die "Xvfb did not start, see build/xvfb.log"
    DISPLAY=:$(<"$number")
    export DISPLAY
    unset XAUTHORITY
    open_wine
}

close_when_over() {
    trap close_screen EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
}

# Wine on the display in use; the prefix opens a desktop of the device's size there.
open_wine() {
    export WINEPREFIX=$prefix WINEDEBUG=-all
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    # A run that was killed may have left its server, bound to a screen that is gone.
    [[ ! -d $prefix ]] || wineserver -k 9>&- || true
    cmp -s <(screen_settings) "$prefix/device.reg" || logged make-wine-prefix make_prefix
    [[ ! -e $system_font ]] || echo 'note: fonts-wine is installed, dialogs come out larger than on the device'
    # Stays up between the programs, which then start quickly.
    in_wine wineserver -p
}

screen_is_up() {
    kill -0 "$screen_pid" 2>/dev/null || die "Xvfb stopped, see build/xvfb.log"
    [[ -s $1 ]]
}

# Wine's background processes must not inherit the lock of this run.
in_wine() {
    LC_ALL=$device_locale "$@" 9>&-
}

# What the registry holds for the screen. Wine takes the font of messages as so many pixels,
# whatever the resolution.
screen_settings() {
    printf -v message_height "f7"
    sed -e "s/\"$device_screen\"/\"$screen_size\"/" -e "s/^  f7,/  $message_height,/" "$root/tools/device.reg"
    printf '\n[HKEY_CURRENT_USER\\Control Panel\\Desktop]\n"LogPixels"=dword:%08x\n' "$screen_dpi"
}

make_prefix() {
    rm -rf "$prefix"
    [[ $prefix == "$first_prefix" || ! -d $first_prefix ]] || cp -a "$first_prefix" "$prefix"
    screen_settings >"$prefix.reg"
    if ! cmp -s "$prefix.reg" "$prefix/device.reg"; then
        [[ -d $prefix ]] || in_wine wineboot -i
        in_wine wine regedit /S "$prefix.reg"
        add_marlett
        # Writes the registry to disk and ends all that still has the old settings.
        in_wine timeout 60 wineserver -w
        cp "$prefix.reg" "$prefix/device.reg"
    fi
}

# The glyphs of scroll arrows, check marks and caption buttons. Their package
# cannot simply be installed: it also brings a bitmap font named "System", which
# Wine prefers to the replacement, and every dialog would change its size.
add_marlett() {
    local unpacked=$build/fonts-wine
    [[ ! -e $system_font ]] || return 0
    if [[ ! -d $unpacked ]]; then
        cd "$build/tmp" || return
        apt-get download fonts-wine || { apt-get update && apt-get download fonts-wine; }
        dpkg-deb -x fonts-wine_*.deb "$unpacked"
        rm fonts-wine_*.deb
    fi
    cp "$unpacked/usr/share/wine/fonts/marlett.ttf" "$prefix/drive_c/windows/Fonts/"
}

forget_screens() {
    trap - EXIT
    opened=()
}

# Ends what this run started, all screens, and only that.
close_screen() {
    local screen
    for screen in "${opened[@]}"; do
        [[ ! -d ${screen#* } ]] || WINEPREFIX=${screen#* } wineserver -k 9>&- || true
        kill "${screen%% *}" 2>/dev/null || true
        wait "${screen%% *}" 2>/dev/null || true
    done
    forget_screens
}
