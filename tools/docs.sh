# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The documentation: the API reference, the pictures, and that the tutorial is true.

reference=$build/docs
tutorial=$root/samples/tutorial

# The reference of the public headers, build/docs/html/index.html.
run_docs() {
    require doxygen python3
    python3 "$root/tools/members.py" "$root" >"$root/docs/members.md"
    logged docs make_reference
    printf 'reference in %s\n' "${reference#"$root"/}/html/index.html"
}

# Everything is documented, member by member, or it is an error. Only members of the framework that
# are just those of the classic one are listed without a word, and its overloads share theirs.
make_reference() {
    local warnings=$reference/warnings.txt
    rm -rf "$reference"
    mkdir -p "$reference"
    sed -e "s|@ROOT@|$root|g" -e "s|@OUTPUT@|$reference|" -e "s|@VERSION@|$(library_version)|" \
        "$root/docs/Doxyfile.in" >"$reference/Doxyfile"
    doxygen "$reference/Doxyfile" 2>"$warnings"
    ! grep -vE "^\$|^$root/framework/.* is not (documented|found in the argument list)" "$warnings"
}

library_version() {
    sed -n 's/^project(Fieldkit VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt"
}

# The tutorial's program against the installed library, as its page says.
build_tutorial() {
    logged configure-tutorial cmake -S "$tutorial" -B "$build/tutorial" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/x86_64-w64-mingw32.cmake" \
        -DCMAKE_PREFIX_PATH="$build/win64/install" -DCMAKE_BUILD_TYPE=Release -DFIRST_TESTS=ON
    logged build-tutorial ninja -C "$build/tutorial" -j"$(nproc)"
}

# Runs the test of the tutorial's program, and compares the page with the files.
test_tutorial() {
    run_test_program sample "$build/tutorial/tests/test_tutorial.exe"
    test_quoted_files
    test_links
}

# The tutorial's page shows all of its files as they are; so does the front page where it
# shows one, and the page of the kit its tests.
test_quoted_files() {
    local page name good=0 bad=0
    for page in "$root/README.md" "$root/docs/tutorial.md"; do
        for name in CMakeLists.txt Resource.h First.rc First.cpp; do
            [[ $page == */tutorial.md ]] || grep -qF "\`$name\`:" "$page" || continue
            check_quoted_file "$name" "$page" "$tutorial"
        done
    done
    for name in DialogTest.cpp ProgramTest.cpp; do
        check_quoted_file "$name" "$root/docs/testkit.md" "$tutorial/tests"
    done
    passed=$((passed + good))
    failed=$((failed + bad))
    printf '%-6s %-20s %5d passed, %d failed\n' docs quoted_files: "$good" "$bad"
}

# check_quoted_file NAME PAGE FOLDER: counts in "good" and "bad".
check_quoted_file() {
    if quoted_file "$1" "$2" | cmp -s - "$3/$1"; then
        good=$((good + 1))
    else
        bad=$((bad + 1))
        printf '  %s does not show %s as it is\n' "${2#"$root"/}" "$1"
    fi
}

# Every page and picture that a page refers to is there. Code has lambdas that look like links.
test_links() {
    local page link good=0 bad=0
    for page in "$root"/*.md "$root"/docs/*.md "$root"/docs/dialogs/*.md; do
        while read -r link; do
            if [[ -e ${page%/*}/$link ]]; then
                good=$((good + 1))
            else
                bad=$((bad + 1))
                printf '  %s: there is no %s\n' "${page#"$root"/}" "$link"
            fi
        done < <(awk '/^```/ { code = !code } !code' "$page" | grep -o '](\([^):#]*\)[)#]' | tr -d '](#)')
    done
    passed=$((passed + good))
    failed=$((failed + bad))
    printf '%-6s %-20s %5d passed, %d failed\n' docs links: "$good" "$bad"
}

# quoted_file NAME PAGE: the fenced block behind the line that ends with `NAME`:
quoted_file() {
    awk -v label="\`$1\`:" '
        inside && /^```/ { exit }
        inside { print }
        armed && /^```/ { inside = 1 }
        substr($0, length($0) - length(label) + 1) == label { armed = 1 }' "$2"
}

# The pictures of the pages, and the demo's from which each is made, without its number,
# and the demo's folder if it is another one.
pictures() {
    cat <<'TEXT'
fieldbook         main
fieldbook-plan    lines-plan
fieldbook-en      main demo-en
fieldbook-plan-en lines-plan demo-en
CFileSelectDlg-en export-file demo-en
controls-entry-en point-entry-complete demo-en
CnDialog          computations
CInputDlg         line-circle-radius
CResultDlg        bad-lines
CResMsgBox        overwrite-question
CFileSelectDlg    open
CBrowseFolderDlg  folders-open
CSelMemberDlg     export-member-moved
CButtonMenuDlg    file-menu
controls-entry    point-entry-complete
controls-list     point-list-sorted
controls-sheet    settings-coordinates
tutorial          tutorial
TEXT
}

# Takes over what ./run demo has left in build/demo/, in 16 colours: a few kilobytes each.
# Needs the screen and the tutorial's program (build_tutorial) for the tutorial's picture.
refresh_pictures() {
    local picture shot folder
    picture_tutorial
    while read -r picture shot folder; do
        folder=$build/${folder:-demo}
        take_over "$picture" "$folder/$shot.png" "$folder"/[0-9][0-9]-"$shot.png"
    done < <(pictures)
}

# picture_screens: what the tests of the screens see on each of them, a sheet a screen.
picture_screens() {
    local screen program
    for screen in "$device_screen 96" "${other_screens[@]}"; do
        # shellcheck disable=SC2086  # size and resolution
        open_screen "-${screen%% *}" $screen
        local folder=$build/screens/$screen_size
        rm -rf "$folder"
        mkdir -p "$folder"
        for program in "$build/fieldbook/tests/test_fieldbook_screens.exe" "$build/win64/bin/test_screens.exe"; do
            (cd "$folder" && FIELDKIT_PICTURES="Z:${folder//\//\\}" WINEPATH="Z:${build//\//\\}\\win64\\bin" in_wine timeout -k 5 120 wine "$program") \
                >"$build/screens-$screen_size.log" 2>&1 </dev/null || die "see build/screens-$screen_size.log"
        done
        close_screen
        montage "$folder"/[0-9]*.png -tile 6x -geometry '320x320>+4+4' -background '#808080' "$folder/all.png"
        convert "$folder/all.png" +dither -colors 32 -strip "png8:$root/docs/images/screens-$screen_size.png"
        printf '  docs/images/screens-%s.png\n' "$screen_size"
    done
}

# take_over PICTURE FILE...: the first of the files that is there.
take_over() {
    local picture=$1 file
    shift
    for file in "$@"; do
        [[ -f $file ]] || continue
        convert "$file" +dither -colors 16 -strip "png8:$root/docs/images/$picture.png"
        printf '  docs/images/%s.png\n' "$picture"
        return
    done
    die "the demo has no picture for docs/images/$picture.png"
}

picture_tutorial() {
    local east=(160 47) north=(160 78) compute=(160 118)
    start_app "$build/tutorial/first.exe"
    wait_window 距離
    tap "${east[@]}"
    key Home shift+End
    type 30
    tap "${north[@]}"
    key Home shift+End
    type 40
    tap "${compute[@]}"
    tap "${north[@]}"
    shot tutorial
    stop_app
}
