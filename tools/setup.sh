# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# What a bare Debian 12 lacks: packages and the Japanese locale.

packages=(
    g++ cmake ninja-build g++-mingw-w64-x86-64-posix googletest wine wine64 xvfb xdotool imagemagick
    fonts-ipafont-gothic locales
    # Loaded by Wine at run time; without them it draws and moves the pen differently.
    libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1
)
# shellcheck disable=SC2034  # for ./run
test_packages=(g++-arm-linux-gnueabi qemu-user valgrind pkgconf gdb python3 gappa)

# Wine takes the code page from the locale: with any other one it is not 932 and
# Japanese file contents are misread.
device_locale=ja_JP.UTF-8

install_missing() {
    require "${packages[@]}"
    if ! has_locale; then
        ((EUID == 0)) || die "as root, run: localedef -i ja_JP -f UTF-8 $device_locale"
        logged make-locale localedef -i ja_JP -f UTF-8 "$device_locale"
    fi
}

# require PACKAGE...: installs those that are missing.
require() {
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]} > 0)) || return 0
    ((EUID == 0)) || die "as root, install: ${missing[*]}"
    logged install-packages apt_install "${missing[@]}"
}

is_installed() {
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed* ]]
}

has_locale() {
    [[ $(locale -a 2>/dev/null) == *ja_JP.utf8* ]]
}

apt_install() {
    export DEBIAN_FRONTEND=noninteractive
    apt-get update
    apt-get install -y --no-install-recommends "$@"
}
