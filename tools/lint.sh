# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Layout, scripts and the faults that clang-tidy finds. Nothing is built for it.

lint_folders=(api framework companion geometry survey util controls dialogs resources module samples testkit bench fuzz tests)

# The quick ones first; each step is an error when it finds anything.
run_lint() {
    require clang-format clang-tidy shellcheck python3 g++-mingw-w64-i686-posix
    logged lint-format check_format
    logged lint-scripts check_scripts
    logged lint-arrows check_arrows
    logged lint-names check_names
    logged lint-assertions check_assertions
    logged lint-subjects check_subjects
    logged lint-members check_members
    logged lint-headers check_headers
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

# Which folder includes which, against tools/arrows.txt.
check_arrows() { python3 tools/arrows.py "$root"; }

# Constants, internal linkage and the companion's header in the one way of CONTRIBUTING.md. The
# framework's public headers name things as the framework does; tests and
# samples/classic are left alone.
check_names() {
    local found
    found=$(
        grep -rnE --include='*.h' --include='*.cpp' '\<constexpr [^=(;]*\<[A-Z][A-Z0-9_]+(\[[^]]*\])? *=' "${lint_folders[@]}" |
            grep -vE '^[a-z]+/[^/]*\.h:|(^|/)(tests|classic)/|\<(WM|IDR)_[A-Z_]+ *='
        grep -rnE --include='*.cpp' '^static ' "${lint_folders[@]}" | grep -vE '(^|/)(tests|classic)/'
        grep -rnE --include='*.h' --include='*.cpp' 'include (<|"companion/)Tesuvo\.h' "${lint_folders[@]}"
    ) || true
    [[ -z $found ]] || printf 'not as CONTRIBUTING.md says:\n%s\n' "$found"
    [[ -z $found ]]
}

# The expected value first, one fact an assertion.
check_assertions() {
    find "${lint_folders[@]}" -path '*tests/*' \( -name '*.h' -o -name '*.cpp' \) -print0 |
        xargs -0 python3 tools/assertions.py
}

# A subject has to fit on a line of a log. Those before this rule stay as they are.
check_subjects() {
    local found
    found=$(git log --no-merges --format='%h %s' f1691c1..HEAD | awk 'length > 80')
    [[ -z $found ]] || printf 'subjects of more than 72 characters:\n%s\n' "$found"
    [[ -z $found ]]
}

# The page of all members is made from the headers, by ./run docs.
check_members() {
    python3 tools/members.py "$root" | cmp -s - docs/members.md && return
    echo 'docs/members.md is not of these headers: ./run docs renews it'
    return 1
}

# Each public header is enough by itself, from the oldest standard on that applications use; all of
# them at once also where pointers have four bytes.
check_headers() {
    local sum options=(-std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -D_WIN32_WINNT=0x0601 -DUNICODE
        -D_UNICODE "-I$root" "-I$root/framework" "-I$root/companion" -isystem /usr/src/googletest/googletest/include)
    sum=$build/lint/passed/headers-$(public_headers | xargs cat | sha1sum | cut -c 1-40)
    [[ ! -e $sum ]] || return 0
    public_headers | sed 's/.*/#include "&"/' | i686-w64-mingw32-g++-posix -msse2 -mfpmath=sse "${options[@]}" -x c++ - || return
    public_headers | xargs -P "$(nproc)" -I '{}' x86_64-w64-mingw32-g++-posix "${options[@]}" -include '{}' -x c++ /dev/null ||
        return
    mkdir -p "$build/lint/passed"
    : >"$sum"
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
    # The samples are projects of their own, and are built against the installed headers. The classic
    # ones keep the manner of the classic wizards.
    find samples -name '*.cpp' -not -path '*/tests/*' -not -path '*/fuzz/*' -not -path '*/classic/*' >"$windows"
    tidy_each "$windows" -- -std=c++17 "${tidy_windows[@]}" -DUNICODE -D_UNICODE -D_WIN32_WINNT=0x0601 \
        -I"$root" -I"$root/framework" -I"$root/companion" -I"$root/samples/fieldbook" || status=1
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
