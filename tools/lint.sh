# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Layout, scripts and the faults that clang-tidy finds. Nothing is built for it.

lint_folders=(framework companion geometry survey util controls dialogs resources samples bench fuzz tests)

# The quick ones first; each step is an error when it finds anything.
run_lint() {
    require clang-format clang-tidy shellcheck
    logged lint-format check_format
    logged lint-scripts check_scripts
    logged lint-configure configure_for_lint
    logged lint-tidy tidy_all
}

check_format() {
    find "${lint_folders[@]}" \( -name '*.h' -o -name '*.cpp' \) -print0 |
        xargs -0 -n 16 -P "$(nproc)" clang-format --dry-run --Werror
}

check_scripts() {
    find run tools samples bench \( -name run -o -name '*.sh' \) -exec shellcheck {} +
}

# Always, so that the compile commands have the sources of now; and without precompiled
# headers, so that a source that does not include what it uses is found.
configure_for_lint() {
    local preset
    for preset in host win64; do
        cmake --preset "$preset" -S "$root" -B "$build/lint/$preset" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
    done
}

# Every source once: natively where it builds natively, else as for Windows. Tests are
# left out: GoogleTest's macros make them slow to check, and what they do is run anyway.
tidy_all() {
    local native=$build/lint/native windows=$build/lint/windows status=0
    mkdir -p "$build/lint/passed"
    sources_of host | grep -v 'Win32\.cpp$' >"$native"
    sources_of win64 | grep -vxFf "$native" >"$windows"
    export -f tidy
    # What a result depends on besides its source: all headers and the settings.
    tidy_base=$(find "${lint_folders[@]}" -name '*.h' -exec cat {} + | cat .clang-tidy tools/lint.sh - | sha1sum)
    export tidy_base tidy_passed=$build/lint/passed

    tidy_each "$native" -p "$build/lint/host" || status=1
    windows_arguments
    tidy_each "$windows" -p "$build/lint/win64" "${tidy_windows[@]/#/--extra-arg=}" || status=1
    # The sample is a project of its own, and is built against the installed headers.
    find samples -name '*.cpp' -not -path '*/tests/*' >"$windows"
    tidy_each "$windows" -- -std=c++17 "${tidy_windows[@]}" -DUNICODE -D_UNICODE -D_WIN32_WINNT=0x0601 \
        -I"$root" -I"$root/framework" -I"$root/companion" || status=1
    return $status
}

sources_of() {
    sed -n "s|^ *\"file\": \"\($root/.*\.cpp\)\".*|\1|p" "$build/lint/$1/compile_commands.json" |
        grep -v -e '/tests/' -e "^$build/" -e '/fuzz/SeedsTest' | sort -u
}

# clang's own compiler headers, and everything else as mingw's compiler finds it.
windows_arguments() {
    local folder
    # mingw is gcc: of its warning options clang does not know all.
    tidy_windows=(--target=x86_64-w64-mingw32 -nostdinc++ -Wno-unknown-warning-option)
    while read -r folder; do
        [[ ! -e $folder/mm_malloc.h && $folder != */include-fixed ]] || continue
        tidy_windows+=("-isystem$folder")
    done < <(x86_64-w64-mingw32-g++-posix -E -x c++ -v /dev/null 2>&1 |
        sed -n '/<\.\.\.> search starts/,/^End/s/^ //p')
}

# tidy_each LIST ARGUMENT...: the sources of a list, in parallel.
tidy_each() {
    local list=$1
    shift
    # shellcheck disable=SC2016  # expanded by the shell that is started
    xargs -a "$list" -d '\n' -P "$(nproc)" -I '{}' bash -c 'tidy "$@"' tidy '{}' "$@"
}

# tidy SOURCE ARGUMENT...: what has passed is not checked again until something changes.
tidy() {
    local source=$1 sum
    shift
    sum=$(printf '%s\n' "$tidy_base" "$*" | cat - "$source" | sha1sum)
    [[ ! -e $tidy_passed/${sum%% *} ]] || return 0
    clang-tidy --quiet --warnings-as-errors='*' "$source" "$@" 2> >(grep -v 'warnings\? generated\.$' >&2) &&
        : >"$tidy_passed/${sum%% *}"
}
