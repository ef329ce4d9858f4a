# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Pictures of a program's window, taken on a display of its own. Sourced by scripts/run.

# How long the server, the window and its contents may take, each on a machine that has other work.
readonly picture_patience=60

# take_picture PICTURE PROGRAM [ARGUMENT]...
take_picture() {
    local picture=$1
    shift

    picture_folder=$(mktemp -d)
    picture_processes=()
    trap end_picture EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM

    start_display
    "$@" >"$picture_folder/program.log" 2>&1 &
    picture_program=$!
    picture_processes=("$picture_program" "${picture_processes[@]}")

    local window
    find_window
    await_contents "$window"
    mv "$picture_folder/window.png" "$picture"
}

# Every process is ended by its own number, the program before the display that it draws on.
end_picture() {
    local process
    for process in "${picture_processes[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$picture_folder"
}

# The window shows a password, so that nobody else on the machine is let onto its display.
start_display() {
    local cookie display output
    cookie=$(mcookie)
    export XAUTHORITY=$picture_folder/authority
    xauth -q -f "$XAUTHORITY" add :0 . "$cookie" 2>/dev/null

    # The server writes the number of the free display that it has found.
    exec {output}< <(exec Xvfb -displayfd 3 -screen 0 1280x900x24 -auth "$XAUTHORITY" \
        3>&1 >"$picture_folder/display.log" 2>&1)
    picture_processes=("$!")
    if ! read -r -t "$picture_patience" -u "$output" display; then
        cat "$picture_folder/display.log" >&2
        fail 'the virtual display did not start'
    fi
    exec {output}<&-

    xauth -q -f "$XAUTHORITY" add ":$display" . "$cookie"
    export DISPLAY=:$display QT_QPA_PLATFORM=xcb
}

# Sets $window to the first visible window of the program.
find_window() {
    local deadline=$((SECONDS + picture_patience))
    until window=$(xdotool search --onlyvisible --pid "$picture_program" 2>/dev/null | head -n 1)
        [[ $window ]]; do
        await_next_look "$deadline" 'no window was shown'
    done
}

# Waits until two looks in a row show the same picture of more than one colour, the last of which
# stays in window.png.
await_contents() {
    local window=$1 deadline=$((SECONDS + picture_patience)) colours='' before='' now=''
    until [[ ${colours:-1} != 1 && $now == "$before" ]]; do
        await_next_look "$deadline" 'the window was not painted'
        before=$now
        import -silent -window "$window" -strip "$picture_folder/window.png" 2>/dev/null || continue
        read -r colours now < <(identify -format '%k %#\n' "$picture_folder/window.png")
    done
}

# await_next_look DEADLINE COMPLAINT
await_next_look() {
    if ! kill -0 "$picture_program" 2>/dev/null; then
        local status=0
        wait "$picture_program" || status=$?
        fail_with_output "the program ended with status $status before its picture was taken"
    fi
    ((SECONDS < $1)) || fail_with_output "$2 within $picture_patience seconds"
    sleep 0.05
}

fail_with_output() {
    printf 'Output of the program:\n' >&2
    cat "$picture_folder/program.log" >&2
    fail "$1"
}
