# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Other compilers and another width of pointers than those of every day; a warning is an error here too.

portability_packages=(clang libc++-14-dev libc++abi-14-dev g++-mingw-w64-i686-posix)
# Those that need no window: their results are the same whoever compiled them.
portable_tests=(test_geometry test_survey test_framework_base test_util)

# Natively and for Windows with clang, there with the portable tests; of 32-bit Windows all is
# compiled and linked and nothing run, as Debian's Wine for it is another system's.
run_portability() {
    require "${test_packages[@]}" "${portability_packages[@]}"
    build_preset clang all
    build_preset clang-win64 product "${portable_tests[@]}"
    build_preset win32 all
    open_screen
    run_programs '' first clang clang-win64
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0))
}

build_preset() {
    logged "configure-$1" configure_preset "$1"
    logged "build-$1" ninja -C "$build/$1" -j"$(nproc)" "${@:2}"
}
