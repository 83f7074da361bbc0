# shellcheck shell=bash disable=SC2034,SC2154  # sourced by ./run, which sets the paths and reads the counters
# The packages that customers get: for Windows DLLs and static libraries in one tree, the sample
# application, and a zip of it all; for Linux what needs no window system.

package_folder=$build/package

# Needs the preset win64 and the sample to be built.
run_package() {
    make_package
    printf '%s\n' "${package_folder#"$root"/}"/{"$(package_name).zip","$(native_name).tar.gz"}
    print_sizes "$package_folder/$(package_name)"
}

make_package() {
    make_windows_package
    make_native_package
}

make_windows_package() {
    logged configure-win64-static configure_preset win64-static
    logged build-win64-static ninja -C "$build/win64-static" -j"$(nproc)" fieldkit winmain testkit
    logged package assemble "$package_folder/$(package_name)"
}

make_native_package() {
    logged configure-linux configure_preset linux
    logged build-linux ninja -C "$build/linux" -j"$(nproc)" fieldkit
    logged package-linux assemble_native "$package_folder/$(native_name)"
}

package_name() {
    printf 'Fieldkit-%s-win64' "$(library_version)"
}

native_name() {
    printf 'Fieldkit-%s-linux-%s' "$(library_version)" "$(uname -m)"
}

assemble() {
    local tree=$1
    rm -rf "$tree"
    cmake --install "$build/win64-static" --prefix "$tree"
    cmake --install "$build/win64" --prefix "$tree"
    # Beside the DLLs, so that it starts with a double click.
    x86_64-w64-mingw32-strip -o "$tree/bin/fieldbook.exe" "$build/fieldbook/fieldbook.exe"
    cp "$root"/samples/fieldbook/data/*.csv "$tree/bin/"
    cp "$root/LICENSE" "$tree/"
    cp "$root/docs/package.md" "$tree/README.md"
    cd "$package_folder" || return
    cmake -E tar cf "$(basename "$tree").zip" --format=zip "$(basename "$tree")"
}

assemble_native() {
    rm -rf "$1"
    cmake --install "$build/linux" --prefix "$1"
    cp "$root/LICENSE" "$1/"
    cp "$root/docs/native.md" "$1/README.md"
    tar -C "$package_folder" -czf "$1.tar.gz" --owner=0 --group=0 "$(basename "$1")"
}

# The DLLs, and whatever they load that is not a part of Windows.
print_sizes() {
    local dll total=0 size
    for dll in "$1"/bin/*.dll; do
        size=$(stat -c %s "$dll")
        total=$((total + size))
        printf '  %-16s %8d bytes\n' "$(basename "$dll")" "$size"
    done
    printf '  %-16s %8d bytes, and at run time %s\n' 'all DLLs' "$total" "$(foreign_dlls "$1")"
}

foreign_dlls() {
    local windows='advapi32|comctl32|comdlg32|dwmapi|gdi32|kernel32|msvcrt|shell32|user32|ole32|oleaut32'
    local names
    names=$(x86_64-w64-mingw32-objdump -p "$1"/bin/*.dll | sed -n 's/.*DLL Name: //p' | sort -uf |
        grep -viE "^($windows|fieldkit|fieldkitfx|tesuvo)\.dll\$") || true
    printf '%s' "${names:-nothing but Windows}" | tr '\n' ' '
}

package_test=$build/package-test

# An outside project, built against the unpacked zip with both kinds of library. Needs the package
# and the screen.
test_package() {
    local work=$package_test/windows tree
    tree=$work/$(package_name)
    rm -rf "$work"
    mkdir -p "$work"
    logged unpack-package unpack "$work"
    logged build-consumer build_consumer "$tree" "$work/cmake"
    logged build-pkgconf build_with_pkgconf "$tree" "$work/pkgconf"
    run_consumer package check_consumer "$work"
}

# The same project without Windows, which has less.
test_native_package() {
    local work=$package_test/linux
    rm -rf "$work"
    mkdir -p "$work"
    logged unpack-linux tar -C "$work" -xzf "$package_folder/$(native_name).tar.gz"
    logged build-native build_native_consumer "$work/$(native_name)" "$work"
    run_consumer linux check_native_consumer "$work"
}

# run_consumer LABEL COMMAND...: adds what the command counts in "good" and "bad".
run_consumer() {
    local start=$EPOCHREALTIME bad=0 good=0
    "${@:2}"
    passed=$((passed + good))
    failed=$((failed + bad))
    printf '%-6s %-20s %5d passed, %d failed (%s s)\n' "$1" consumer: "$good" "$bad" "$(seconds_since "$start")"
}

check_native_consumer() {
    local work=$1 part tests=$root/tests/package
    for part in geometry survey; do
        check "$tests/$part.txt" "$work/cmake/$part"
        check "$tests/$part.txt" "$work/pkgconf/$part"
    done
    check "$tests/views.txt" "$work/cmake/views.gdb"
}

check_consumer() {
    local work=$1 part tests=$root/tests/package expected
    expected=$tests/consumer.txt
    local files=(Fieldkit.dll FieldkitFx.dll Tesuvo.dll fieldbook.exe)
    versions_expected "${files[@]}" >"$work/versions.txt"
    check_hardened "${files[@]/#/$work/cmake/}"
    check_small "$work"/cmake/{Fieldkit,FieldkitFx,Tesuvo}.dll
    for part in geometry survey; do
        check "$tests/$part.txt" "$work/cmake/$part.exe"
    done
    check "$expected" "$work/cmake/shared.exe"
    check "$expected" "$work/cmake/static.exe"
    check "$tests/english.txt" "$work/cmake/english.exe"
    check "$tests/english.txt" "$work/cmake/english_static.exe"
    check "$expected" "$work/pkgconf/shared.exe"
    check "$expected" "$work/pkgconf/static.exe"
    printf 'failures 0\n' >"$work/dialog.txt"
    check "$work/dialog.txt" "$work/cmake/shared_dialog.exe"
    check "$work/dialog.txt" "$work/cmake/static_dialog.exe"
    check "$work/versions.txt" "$work/cmake/versions.exe" "${files[@]}"
    printf 'exit 42\n' >"$work/exit.txt"
    check "$work/exit.txt" "$work/cmake/shared_window.exe"
    check "$work/exit.txt" "$work/cmake/static_window.exe"
}

unpack() {
    cd "$1" || return
    cmake -E tar xf "$package_folder/$(package_name).zip"
}

build_consumer() {
    cmake -S "$root/tests/package" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/x86_64-w64-mingw32.cmake" \
        -DCMAKE_PREFIX_PATH="$1" -DEXPECTED_VERSION="$(library_version)"
    ninja -C "$2"
    cp "$1"/bin/*.dll "$1"/bin/fieldbook.exe "$2/"
}

# build_native_consumer TREE WORK: with both ways to find the library.
build_native_consumer() {
    local part flags
    cmake -S "$root/tests/package" -B "$2/cmake" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH="$1" \
        -DEXPECTED_VERSION="$(library_version)"
    ninja -C "$2/cmake"
    mkdir -p "$2/pkgconf"
    for part in Geometry Survey; do
        flags=$(PKG_CONFIG_LIBDIR=$1/lib/pkgconfig pkg-config --cflags --libs "fieldkit-${part,,}")
        # shellcheck disable=SC2086  # a list of options
        g++ "$root/tests/package/$part.cpp" $flags -o "$2/pkgconf/${part,,}"
    done
}

build_with_pkgconf() {
    local kind flags
    mkdir -p "$2"
    cp "$1"/bin/*.dll "$2/"
    x86_64-w64-mingw32-windres -c 65001 -O coff "$root/tests/package/Consumer.rc" "$2/Consumer.o"
    for kind in shared static; do
        flags=$(PKG_CONFIG_LIBDIR=$1/lib/pkgconfig pkg-config --cflags --libs "fieldkit-$kind")
        # shellcheck disable=SC2086  # a list of options
        x86_64-w64-mingw32-g++-posix -O2 -static "$root/tests/package/Consumer.cpp" "$2/Consumer.o" \
            $flags -o "$2/$kind.exe"
    done
}

# versions_expected FILE...: what Versions.cpp has to print, the number in every place and
# the licence's copyright line.
versions_expected() {
    local file version copyright
    version=$(library_version)
    copyright=$(grep '^Copyright' "$root/LICENSE")
    for file in "$@"; do
        printf '%s %s|%s|%s|Fieldkit|Fieldkit|%s\n' "$file" "$version" "$version" "$version" "$copyright"
    done
}

# check_hardened FILE...: each asks for random addresses and for data that is not executed;
# counts in "good" and "bad".
check_hardened() {
    local file flag headers
    for file in "$@"; do
        headers=$(x86_64-w64-mingw32-objdump -p "$file")
        for flag in DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT; do
            if grep -qw "$flag" <<<"$headers"; then
                good=$((good + 1))
            else
                bad=$((bad + 1))
                printf '  %s is not marked %s\n' "$(basename "$file")" "$flag"
            fi
        done
    done
}

# check_small DLL...: they are stripped, and small enough together for the device; counts in "good" and "bad".
check_small() {
    local most=$((2 * 1024 * 1024)) size
    size=$(cat "$@" | wc -c)
    if ((size < most)) && [[ $(x86_64-w64-mingw32-nm "$@" 2>&1 | grep -c 'no symbols') == "$#" ]]; then
        good=$((good + 1))
    else
        bad=$((bad + 1))
        printf '  the DLLs have %d bytes, or symbols\n' "$size"
    fi
}

# check EXPECTED PROGRAM ARGUMENTS...: runs it in its own folder; counts in "good" and "bad".
check() {
    local expected=$1 program=$2 status=0
    local log=${program%.exe}.log start=()
    shift 2
    case $program in
    *.exe) start=(in_wine timeout -k 5 60 wine) ;;
    *.gdb) start=(timeout -k 5 60 gdb -nx -batch -x) ;;
    esac
    (cd "$(dirname "$program")" && "${start[@]}" "$program" "$@") >"$log.raw" 2>&1 </dev/null || status=$?
    ((status == 0)) || printf 'exit %d\n' "$status" >>"$log.raw"
    tr -d '\r' <"$log.raw" >"$log"
    if cmp -s "$expected" "$log"; then
        good=$((good + 1))
    else
        bad=$((bad + 1))
        printf '  %s, expected and found:\n' "${program#"$root"/}"
        diff "$expected" "$log" | sed 's/^/    /' || true
    fi
}
