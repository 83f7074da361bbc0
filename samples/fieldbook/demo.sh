# shellcheck shell=bash disable=SC2154  # sourced by tools/demo.sh, which sets the paths
# The fieldbook at work, with the pen alone: each screen and each computation. The
# points and what must come out are in data/README.md.

fieldbook=$build/fieldbook/fieldbook.exe
points=$build/fieldbook/points.csv
journal=$build/fieldbook/points_results.txt

# Buttons of the main screen, from the top.
compute=(120 69)
polar=(120 106)
point_list=(120 144)
point_entry=(120 181)
journal_screen=(120 218)
settings=(120 256)

# Buttons of the screen of computations, from the top.
lines=(120 57)
line_circle=(120 108)
circles=(120 159)
arc_centre=(120 210)
tangents=(120 260)

ok_button=(196 13) # in the title bar
close_button=(227 13)
input_cancel=(172 146)
result_ok=(62 241)
message_ok=(121 194)

# The keys of the soft input panel, which lies on the screen from y = 169 to 294. Shift stands
# before a capital.
letter_rows=(1234567890 qwertyuiop asdfghjkl-)
digit_rows=(789 456 123-)

press_letter() {
    local row at key=${1,,} last=zxcvbnm
    [[ $1 == "$key" ]] || tap 18 256
    for row in 0 1 2; do
        at=${letter_rows[row]%%"$key"*}
        [[ $at == "${letter_rows[row]}" ]] || tap $((${#at} * 24 + 12)) $((181 + row * 25))
    done
    at=${last%%"$key"*}
    [[ $at == "$last" ]] || tap $((${#at} * 24 + 48)) 256
}

press_digit() {
    local row at
    case $1 in
    0) tap 30 278 ;;
    .) tap 90 278 ;;
    *)
        for row in 0 1 2; do
            at=${digit_rows[row]%%"$1"*}
            [[ $at == "${digit_rows[row]}" ]] || tap $((${#at} * 60 + 30)) $((184 + row * 31))
        done
        ;;
    esac
}

# letters TEXT, digits TEXT: on the panel in that mode.
letters() {
    local i
    for ((i = 0; i < ${#1}; ++i)); do press_letter "${1:i:1}"; done
}

digits() {
    local i
    for ((i = 0; i < ${#1}; ++i)); do press_digit "${1:i:1}"; done
}

letters_enter() { tap 213 281; }
letters_backspace() { tap 222 256; }
digits_enter() { tap 180 278; }
digits_backspace() { tap 210 184; }
digits_next() { tap 210 216; }

# answer TEXT...: each into the question on the screen. Numbers are asked for with digits.
answer() {
    local text
    for text in "$@"; do
        if [[ $text == [0-9]* ]]; then
            digits "$text"
            digits_enter
        else
            letters "$text"
            letters_enter
        fi
    done
}

# Whatever an earlier run has left, and for whoever comes next.
reset_settings() {
    local key
    for key in 'HKCU\Software\Tesuvo\Common' 'HKCU\Software\Fieldkit'; do
        wine reg delete "$key" /f >>"$build/demo.log" 2>&1 </dev/null 9>&- || true
    done
}

cp "$root/samples/fieldbook/data/points.csv" "$points"
rm -f "$journal"
reset_settings

start_app "$fieldbook"
wait_window 野帳
shot 01-main
tap "${compute[@]}"
shot 02-computations

tap "${lines[@]}"
shot 03-lines-first-point
answer K1 K3 K2
letters K99
shot 04-lines-unknown-name
letters_enter
shot 05-lines-unknown-name-told
tap "${message_ok[@]}"
shot 06-lines-asked-again
letters_backspace
letters_backspace
letters 4
letters_enter
shot 07-lines-result
tap "${result_ok[@]}"

tap "${lines[@]}"
shot 08-lines-last-name-proposed
tap "${input_cancel[@]}"

tap "${line_circle[@]}"
answer W1 W2 CC1
shot 09-line-circle-radius
answer 30
shot 10-line-circle-result
tap "${result_ok[@]}"

tap "${line_circle[@]}"
for ((i = 0; i < 3; ++i)); do letters_enter; done
digits_backspace
digits_backspace
answer 13
shot 11-line-circle-none
tap "${result_ok[@]}"

tap "${circles[@]}"
answer T1 40 T2
shot 12-circles-second-radius
answer 30
shot 13-circles-result
tap "${result_ok[@]}"

tap "${arc_centre[@]}"
answer BC EC
digits 90.0000
shot 14-arc-centre-angle
digits_enter
shot 15-arc-centre-result
tap "${result_ok[@]}"

tap "${tangents[@]}"
shot 16-tangents-first-point
answer BC CC1 EC
shot 17-tangents-result
tap "${result_ok[@]}"
tap "${ok_button[@]}"

tap "${polar[@]}"
shot 18-polar
tap 120 67
digits 23.0748
shot 19-polar-direction-typed
digits_next
digits 30
tap 120 119
shot 20-polar-angles-shown
digits 50
digits_enter
shot 21-polar-result
tap "${ok_button[@]}"

tap "${point_entry[@]}"
shot 22-point-entry
tap 220 38
shot 23-point-entry-kinds
tap 100 67
tap 100 67
shot 24-point-entry-name
tap 100 93
digits -35300.5
tap 100 119
digits 13200.25
tap 100 144
shot 25-point-entry-numbers
digits 24.5
shot 26-point-entry-complete
digits_enter
shot 27-point-added
tap 200 144
shot 28-point-entry-no-height
tap 100 67
letters_backspace
letters_backspace
letters k1
shot 29-point-entry-capitals
tap 100 93
digits 1
tap 100 119
digits 2
digits_enter
shot 30-point-entry-duplicate
tap "${message_ok[@]}"
tap "${ok_button[@]}"

tap "${point_list[@]}"
wait_window 点の一覧
shot 31-point-list
tap 90 38
shot 32-point-list-sorted
tap "${ok_button[@]}"

tap "${journal_screen[@]}"
shot 33-journal
tap 90 62
shot 34-journal-open
tap 70 84
shot 35-journal-result
tap "${ok_button[@]}"

tap "${settings[@]}"
shot 36-settings-coordinates
tap 168 88
shot 37-settings-two-decimals
tap 84 36
tap 60 112
shot 38-settings-angles
tap 138 36
tap 60 122
shot 39-settings-tolerance
tap "${ok_button[@]}"
tap "${point_list[@]}"
shot 40-point-list-two-decimals
tap "${ok_button[@]}"
tap "${close_button[@]}"
wait_exit

# The journal holds what the dialogs showed, in the device's code page.
iconv -f CP932 -t UTF-8 "$journal" | tr -d '\r' >"$build/demo/results.txt"
cat "$build/demo/results.txt"
diff "$root/samples/fieldbook/demo-results.txt" "$build/demo/results.txt" ||
    die 'the computed coordinates are not the expected ones'
tail -n 1 "$points" | grep -q '^K5,-35300.500000,13200.250000,24.500000' ||
    die 'the point that was entered is not in the file'

start_app "$fieldbook" "Z:${root//\//\\}\\samples\\fieldbook\\data\\points_bad.csv"
wait_window 読み込みの結果
shot 41-bad-lines
tap "${result_ok[@]}"
shot 42-main-after-bad-lines
tap "${close_button[@]}"
wait_exit
reset_settings
