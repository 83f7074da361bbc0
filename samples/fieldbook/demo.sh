# shellcheck shell=bash disable=SC2154  # sourced by tools/demo.sh, which sets the paths
# The fieldbook at work: each computation with its questions and its result. The
# points and what must come out are in data/README.md.

fieldbook=$build/fieldbook/fieldbook.exe
journal=$build/fieldbook/points_results.txt

# Buttons of the main screen, from the top.
lines=(120 69)
line_circle=(120 106)
circles=(120 144)
arc_centre=(120 181)
tangents=(120 218)
point_list=(120 256)
close_button=(227 13)

# Buttons of the popup dialogs.
input_ok=(64 198)
input_cancel=(174 198)
result_ok=(62 241)

# answer TEXT...: types each text into the question on the screen and confirms it.
answer() {
    local text
    for text in "$@"; do
        type "$text"
        tap "${input_ok[@]}"
    done
}

rm -f "$journal"
start_app "$fieldbook"
wait_window 野帳
shot 01-main

tap "${lines[@]}"
shot 02-lines-first-point
answer K1 K3 K2
type K99
shot 03-lines-unknown-name
tap "${input_ok[@]}"
shot 04-lines-unknown-name-told
key Return
shot 05-lines-asked-again
key BackSpace BackSpace
answer 4
shot 06-lines-result
tap "${result_ok[@]}"

tap "${lines[@]}"
shot 07-lines-last-name-proposed
tap "${input_cancel[@]}"

tap "${line_circle[@]}"
answer W1 W2 CC1
shot 08-line-circle-radius
answer 30
shot 09-line-circle-result
tap "${result_ok[@]}"

tap "${line_circle[@]}"
for ((i = 0; i < 3; ++i)); do tap "${input_ok[@]}"; done
key BackSpace BackSpace
answer 13
shot 10-line-circle-none
tap "${result_ok[@]}"

tap "${circles[@]}"
answer T1 40 T2
shot 11-circles-second-radius
answer 30
shot 12-circles-result
tap "${result_ok[@]}"

tap "${arc_centre[@]}"
answer BC EC
type 90.0000
shot 13-arc-centre-angle
tap "${input_ok[@]}"
shot 14-arc-centre-result
tap "${result_ok[@]}"

tap "${tangents[@]}"
shot 15-tangents-first-point
answer BC CC1 EC
shot 16-tangents-result
tap "${result_ok[@]}"

tap "${point_list[@]}"
wait_window 点の一覧
shot 17-point-list
tap 60 120
shot 18-point-list-height
tap 196 13 # the OK button of the title bar
key Escape # must not close a main window
tap "${close_button[@]}"
wait_exit

# The journal holds what the dialogs showed, in the device's code page.
iconv -f CP932 -t UTF-8 "$journal" | tr -d '\r' >"$build/demo/results.txt"
cat "$build/demo/results.txt"
diff "$root/samples/fieldbook/demo-results.txt" "$build/demo/results.txt" ||
    die 'the computed coordinates are not the expected ones'

start_app "$fieldbook" "Z:${root//\//\\}\\samples\\fieldbook\\data\\points_bad.csv"
wait_window 読み込みの結果
shot 19-bad-lines
tap "${result_ok[@]}"
shot 20-main-after-bad-lines
tap "${close_button[@]}"
wait_exit
