# shellcheck shell=bash disable=SC2154  # sourced by tools/demo.sh, which sets the paths
# A day with the fieldbook, with the pen and the panel alone: each screen, each computation,
# each dialog. The points and what must come out are in data/README.md.

fieldbook=$build/fieldbook/fieldbook.exe
data=$root/samples/fieldbook/data
# The job lies on the device's own disk: the folder dialog shows all of it.
job=$WINEPREFIX/drive_c/fieldbook

# Entries of the main menu and of the file menu, from the top.
point_entry=(120 47)
point_list=(120 83)
compute=(120 119)
plan=(120 155)
journal=(120 191)
file_menu=(120 227)
export=(120 263)
settings=(120 299)
open=(120 82)
previous=(120 118)
new=(120 154)
save=(120 190)
save_as=(120 226)
folder=(120 262)

# Buttons of the screen of computations.
lines=(62 58)
line_circle=(179 58)
circles=(62 91)
bearings=(179 91)
combined=(62 123)
foot=(179 123)
arc_centre=(62 174)
curve=(179 174)
polar=(62 224)
inverse=(179 224)
extent=(62 257)
area=(179 257)

# Buttons at the bottom of the point list and of a result.
left_button=(62 258)
right_button=(179 258)
list_edit=(42 258)
list_remove=(120 258)
list_undo=(198 258)

ok_button=(196 13) # in the title bar
close_button=(227 13)
menu_close=(229 13)
input_cancel=(100 152)
pick_list=(163 152)
pick_plan=(210 152)
sip_button=(217 307) # with the file dialogs, whose bar has wide buttons

# The keys of the soft input panel, which lies on the screen from y = 169 to 294. Shift stands
# before a capital.
last_x=-99 last_y=-99
letter_rows=(1234567890 qwertyuiop asdfghjkl-)
digit_rows=(789 456 123-)

# The program takes a quick second tap at the same place for a hand that trembles; here each is meant.
tap() {
    local near=14
    if ((($1 - last_x) ** 2 <= near ** 2 && ($2 - last_y) ** 2 <= near ** 2)); then sleep 0.5; fi
    key_tap "$@"
}

# The keys of the panel may be tapped as quickly as one likes.
key_tap() {
    last_x=$1 last_y=$2
    act pen_tap "$1" "$2"
}

press_letter() {
    local row at key=${1,,} last=zxcvbnm
    [[ $1 == "$key" ]] || key_tap 18 256
    for row in 0 1 2; do
        at=${letter_rows[row]%%"$key"*}
        [[ $at == "${letter_rows[row]}" ]] || key_tap $((${#at} * 24 + 12)) $((181 + row * 25))
    done
    at=${last%%"$key"*}
    [[ $at == "$last" ]] || key_tap $((${#at} * 24 + 48)) 256
}

press_digit() {
    local row at
    case $1 in
    0) key_tap 30 278 ;;
    .) key_tap 90 278 ;;
    *)
        for row in 0 1 2; do
            at=${digit_rows[row]%%"$1"*}
            [[ $at == "${digit_rows[row]}" ]] || key_tap $((${#at} * 60 + 30)) $((184 + row * 31))
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

# Into the next question only after a moment, for the same reason.
enter() {
    sleep 0.4
    key_tap "$@"
}

letters_enter() { enter 213 281; }
letters_backspace() { key_tap 222 256; }
digits_enter() { enter 180 278; }
digits_backspace() { key_tap 210 184; }
digits_next() { tap 210 216; }

# answer TEXT...: each into the question on the screen. Numbers are asked for with digits.
answer() {
    local text
    for text in "$@"; do
        if [[ $text == [0-9-]* ]]; then
            digits "$text"
            digits_enter
        else
            letters "$text"
            letters_enter
        fi
    done
}

# The buttons of the program's messages, and of the system's boxes, whose place depends on their text.
message_ok() { tap 120 219; }
message_yes() { tap 62 219; }
message_no() { tap 177 219; }
box_yes() { tap "$(word 73 95)" "$1"; }
box_no() { tap "$(word 171 148)" "$1"; }

# Whatever an earlier run has left, and for whoever comes next.
reset() {
    local key
    for key in 'HKCU\Software\Tesuvo\Common' 'HKCU\Software\Fieldkit'; do
        wine reg delete "$key" /f >>"$build/demo.log" 2>&1 </dev/null 9>&- || true
    done
    rm -f "$build/fieldbook/history.dat"
}

# word JAPANESE ENGLISH: the one that is on the screen.
word() {
    if ((${#demo_language[@]} == 0)); then printf '%s' "$1"; else printf '%s' "$2"; fi
}

start_fieldbook() {
    cd "$job" || return
    start_app "$fieldbook" "${demo_language[@]}" "C:\\fieldbook\\$1"
    cd "$root" || return
    wait_window "${2:-$(word 野帳 Fieldbook)}"
}

# expect NAME TEXT: the last line of a file of the job begins with TEXT.
expect() {
    tail -n 1 "$job/$1" | iconv -f CP932 -t UTF-8 | grep -q "^$2" || die "$1 does not end with $2"
}

rm -rf "$job"
mkdir -p "$job/backup"
cp "$data/points.csv" "$data/boundary.csv" "$data/points_bad.csv" "$data/utf8.csv" "$job"
reset

# --- Computations -------------------------------------------------------------------------------

start_fieldbook points.csv
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
message_ok
answer K4
shot 06-lines-result
tap "${left_button[@]}"
shot 07-lines-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${line_circle[@]}"
answer W1 W2 CC1
shot 08-line-circle-radius
answer 30
shot 09-line-circle-result
tap 120 105
shot 10-second-solution-chosen
tap "${left_button[@]}"
shot 11-line-circle-plan
tap "${close_button[@]}"
tap "${right_button[@]}"
shot 12-keep-name-proposed
for ((i = 0; i < 2; ++i)); do letters_backspace; done
letters K1
letters_enter
shot 13-keep-name-taken
message_ok
for ((i = 0; i < 2; ++i)); do letters_backspace; done
letters P1
letters_enter
shot 14-point-kept
tap "${ok_button[@]}"

tap "${line_circle[@]}"
for ((i = 0; i < 3; ++i)); do letters_enter; done
digits_backspace
digits_backspace
answer 13
shot 15-line-circle-none
tap "${ok_button[@]}"

tap "${circles[@]}"
answer T1 40 T2
shot 16-circles-second-radius
answer 30
shot 17-circles-result
tap "${left_button[@]}"
shot 18-circles-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${bearings[@]}"
answer T1
shot 19-bearings-direction
answer 0 T2 270
shot 20-bearings-result
tap "${left_button[@]}"
shot 21-bearings-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${arc_centre[@]}"
answer BC EC
digits 90.0000
shot 22-arc-centre-angle
digits_enter
shot 23-arc-centre-result
tap "${ok_button[@]}"

tap "${curve[@]}"
answer BC CC1 EC
shot 24-curve-result
tap "${left_button[@]}"
shot 25-curve-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${foot[@]}"
answer T1 T2 K1
shot 25b-foot-result
tap "${left_button[@]}"
shot 25c-foot-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${area[@]}"
answer K1 K2
shot 25d-area-corner
answer K3 K4
letters_enter
shot 25e-area-result
tap "${left_button[@]}"
shot 25f-area-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${combined[@]}"
shot 25g-first-figure
tap 120 189
tap 120 224
answer K1 K2
shot 25h-parallel-offset
answer 5 K1 30
shot 25i-parallel-and-circle
tap "${left_button[@]}"
shot 25j-parallel-and-circle-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${inverse[@]}"
answer T1 T2
shot 26-inverse-result
tap "${ok_button[@]}"

tap "${extent[@]}"
shot 27-extent-result
tap "${left_button[@]}"
shot 28-extent-plan
tap "${close_button[@]}"
tap "${ok_button[@]}"

tap "${polar[@]}"
shot 29-polar
tap 139 41
shot 30-polar-names-entered-lately
tap 100 68
tap 120 69
digits 23.0748
shot 31-polar-direction-typed
digits_next
digits 30
tap 120 124
shot 32-polar-angles-shown
digits 50
digits_enter
shot 33-polar-result
tap "${ok_button[@]}"
tap "${ok_button[@]}"
tap "${inverse[@]}"
letters_enter
tap "${pick_plan[@]}"
shot 33b-inverse-plan-to-pick-from
tap 143 58
shot 33c-inverse-from-there
tap "${ok_button[@]}"
tap "${inverse[@]}"
tap "${pick_list[@]}"
tap 150 38
letters 3
shot 33d-part-of-a-name
tap "${close_button[@]}"
tap 100 203 # the panel has gone, and the question stands lower
tap "${ok_button[@]}"

# --- The plan -----------------------------------------------------------------------------------

tap "${plan[@]}"
shot 34a-plan
tap 39 262
tap 39 262
shot 34b-plan-larger
drag 120 150 40 190
shot 34c-plan-dragged
tap 121 262
shot 34d-plan-smaller
tap 201 262
shot 34e-plan-whole
tap "${close_button[@]}"

# --- Points -------------------------------------------------------------------------------------

tap "${point_entry[@]}"
shot 35-point-entry
tap 108 41
shot 36-point-entry-kinds
tap 100 70
tap 100 69
shot 37-point-entry-name
tap 100 97
digits -35300.5
tap 100 124
digits 13200.25
tap 100 152
digits 24.5
shot 38-point-entry-complete
digits_enter
shot 39-point-added
tap 200 152
shot 40-point-entry-no-height
tap 100 69
letters_backspace
letters_backspace
letters k1
shot 41-point-entry-capitals
tap 100 97
digits 1
tap 100 124
digits 2
digits_enter
shot 42-point-entry-duplicate
message_ok
tap "${close_button[@]}"
shot 43a-typed-values-question
key Return
shot 43b-stayed
tap "${close_button[@]}"
message_yes
shot 43c-main-unsaved

tap "${point_list[@]}"
wait_window "$(word 点の一覧 Points)"
shot 44-point-list
tap 90 38
shot 45-point-list-sorted
tap "${list_edit[@]}"
shot 46-point-list-none-selected
message_ok
tap 20 85
shot 47-point-list-selected
tap "${list_edit[@]}"
shot 48-point-edit
tap 100 152
for ((i = 0; i < 6; ++i)); do digits_backspace; done
shot 49-point-edit-height-removed
digits_enter
shot 50-point-list-changed
tap 20 113
tap "${list_remove[@]}"
shot 51-point-list-remove
message_no
tap "${list_remove[@]}"
message_yes
shot 52a-point-list-removed
tap "${list_undo[@]}"
shot 52b-point-list-undone
tap 20 113
tap "${list_remove[@]}"
message_yes
tap "${ok_button[@]}"

# --- Journal and settings -----------------------------------------------------------------------

tap "${journal[@]}"
shot 53-journal
tap 90 74
shot 54-journal-open
tap 56 102
shot 55-journal-result
tap "${ok_button[@]}"

tap "${settings[@]}"
shot 56-settings-coordinates
tap 168 88
shot 57-settings-two-decimals
tap 84 36
tap 60 112
shot 58-settings-angles
tap 138 36
tap 60 122
shot 59-settings-tolerance
tap "${ok_button[@]}"

# --- Export -------------------------------------------------------------------------------------

tap "${export[@]}"
shot 60-export-columns
tap 40 119
tap 108 140
shot 61-export-blank-added
tap 140 133
tap 108 184
shot 62-export-member-removed
tap 140 119
tap 221 157
shot 63-export-member-moved
tap 112 235
shot 64-export-file
tap "${ok_button[@]}"
shot 65-export-done
message_ok

# --- Files --------------------------------------------------------------------------------------

tap "${file_menu[@]}"
shot 66-file-menu
tap "${save_as[@]}"
shot 67-save-as-name-proposed
tap 100 115
shot 68-save-as-existing
tap "${ok_button[@]}"
shot 69-overwrite-question
box_no 190
shot 70-overwrite-refused
tap 222 62
shot 71-folders
tap 34 58
shot 72-folders-open
tap 80 74
tap "${ok_button[@]}"
shot 73-folder-changed
tap 130 38
tap "${sip_button[@]}"
for ((i = 0; i < 14; ++i)); do letters_backspace; done
letters day1
shot 74-save-as-name-typed
tap "${ok_button[@]}"
shot 75-saved-in-folder
tap "${file_menu[@]}"
tap "${save_as[@]}"
tap 60 101
tap "${ok_button[@]}"
shot 76-overwrite-question-again
box_yes 190
shot 77-overwritten

tap "${point_list[@]}"
tap 20 113
tap "${list_remove[@]}"
message_yes
tap "${ok_button[@]}"
tap "${file_menu[@]}"
tap "${open[@]}"
shot 78-unsaved-question
message_no
shot 79-unsaved-given-up-question
message_no
shot 80-stayed
tap "${file_menu[@]}"
tap "${save[@]}"
shot 81-saved

tap "${file_menu[@]}"
tap "${new[@]}"
shot 82-new
tap "${ok_button[@]}"
shot 83-new-made
tap "${file_menu[@]}"
tap "${folder[@]}"
shot 84-working-folder
tap 60 58
tap "${ok_button[@]}"
tap "${file_menu[@]}"
tap "${open[@]}"
shot 85-open
tap 60 101
tap "${ok_button[@]}"
shot 86-other-file-open
tap "${file_menu[@]}"
tap "${previous[@]}"
shot 86b-file-before-this-one
tap "${file_menu[@]}"
tap "${previous[@]}"

# --- The next day -------------------------------------------------------------------------------

tap "${point_list[@]}"
shot 87-points-without-coordinates
tap 20 113
tap "${list_remove[@]}"
message_yes
tap "${ok_button[@]}"
tap "${menu_close[@]}"
shot 88-leaving-unsaved
message_yes
wait_exit

start_fieldbook boundary.csv
tap "${compute[@]}"
tap "${inverse[@]}"
tap 210 119
shot 89-names-of-the-day-before
tap 60 138
shot 90-name-chosen
tap 35 203
shot 91-second-point
tap "${input_cancel[@]}"
tap "${ok_button[@]}"
tap "${export[@]}"
shot 92-columns-of-the-day-before
tap 195 235
tap "${menu_close[@]}"
wait_exit

start_fieldbook points_bad.csv "$(word 読み込みの結果 "Lines not read")"
shot 93-bad-lines
tap 62 241
tap "${point_list[@]}"
tap 20 113
tap "${list_remove[@]}"
message_yes
tap "${ok_button[@]}"
tap "${file_menu[@]}"
tap "${save[@]}"
shot 94-backup-kept
message_ok
shot 95-saved-without-bad-lines
tap "${menu_close[@]}"
wait_exit

# --- A file of others, and a battery that falls out --------------------------------------------

start_fieldbook utf8.csv
tap "${point_list[@]}"
shot 96-utf8-points
tap "${ok_button[@]}"
tap "${point_entry[@]}"
tap 220 41
letters gate
tap 100 97
answer 1
answer 2
shot 97-code-entered
answer 3
stop_app
start_fieldbook utf8.csv
shot 98-changes-are-back
message_ok
tap "${point_list[@]}"
shot 99-point-of-before
tap "${ok_button[@]}"
tap "${file_menu[@]}"
tap "${save[@]}"
tap "${menu_close[@]}"
wait_exit
reset

# --- What is left on the disk -------------------------------------------------------------------

# The journal holds what the screens showed, in the device's code page.
iconv -f CP932 -t UTF-8 "$job/points_results.txt" | tr -d '\r' |
    sed -E 's/^[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}  //' >"$demo_shots/results.txt"
cat "$demo_shots/results.txt"
diff "$root/samples/fieldbook/$(word demo-results demo-results-en).txt" "$demo_shots/results.txt" ||
    die 'the computed coordinates are not the expected ones'
expect backup/day1.csv 'K5,-35300.500000,13200.250000,24.500000'
expect export.csv '13200.250000,K5,24.500000,'
cmp -s "$data/points_bad.csv" "$job/points_bad.csv.bak" || die 'the file with bad lines was not kept'
cmp -s "$data/utf8.csv" "$job/utf8.csv.bak" || die 'the file of others was not kept'
[[ $(tail -n 1 "$job/utf8.csv") == T1,1.000000,2.000000,3.000000,GATE ]] || die 'the point is not in the UTF-8 file'
cmp -s "$data/points.csv" "$job/points.csv" || die 'the file that was not saved has changed'
