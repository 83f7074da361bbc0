# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Which lines of the portable folders their native tests run.

run_coverage() {
    local folder=$build/coverage
    require gcovr
    logged coverage-configure cmake --preset host -S "$root" -B "$folder" \
        -DFIELDKIT_SANITIZE=OFF -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS='-O0 -g --coverage -fno-inline'
    logged coverage-build compile "$folder"
    # Counts add up over runs, so they start anew.
    find "$folder" -name '*.gcda' -delete
    logged coverage-tests ctest --test-dir "$folder" --output-on-failure
    mkdir -p "$folder/html"
    gcovr --root "$root" "$folder" --gcov-ignore-parse-errors \
        --filter "$root/(framework|companion|geometry|survey)/" --exclude-throw-branches \
        --exclude-unreachable-branches --html-details "$folder/html/index.html" --txt | grep -v '^-*$'
    printf 'every line in %s\n' "${folder#"$root"/}/html/index.html"
}
