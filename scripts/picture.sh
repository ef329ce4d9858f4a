# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Takes screenshots of a program's window on a virtual display. Sourced by scripts/run and
# scripts/test-package.

# Seconds after which the display, the window or the window's contents count as missing.
readonly picture_timeout=60

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

# Ends the processes in picture_processes one after the other, then the display.
end_picture() {
    local process
    for process in "${picture_processes[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    if [[ ${display_runner-} ]]; then
        kill "${display_command:-$display_runner}" 2>/dev/null || true
        wait "$display_runner" 2>/dev/null || true
    fi
    rm -rf "$picture_folder"
}

# Starts a display that only programs with the cookie in XAUTHORITY can use, because its window shows
# a password.
start_display() {
    local output
    export XAUTHORITY=$picture_folder/authority

    # xvfb-run ends the display when this command ends, which prints its process id and waits.
    # shellcheck disable=SC2016 # for the shell that xvfb-run starts
    exec {output}< <(exec xvfb-run --auto-servernum --auth-file="$XAUTHORITY" \
        --error-file="$picture_folder/display.log" --server-args='-screen 0 1280x900x24' \
        sh -c 'echo "$$ $DISPLAY"; exec sleep infinity' 2>>"$picture_folder/display.log")
    display_runner=$!
    if ! read -r -t "$picture_timeout" -u "$output" display_command DISPLAY; then
        cat "$picture_folder/display.log" >&2
        fail 'the virtual display did not start'
    fi
    exec {output}<&-
    export DISPLAY QT_QPA_PLATFORM=xcb
}

# Waits for the first visible window of the program and sets $window to its id.
find_window() {
    local deadline=$((SECONDS + picture_timeout))
    until window=$(xdotool search --onlyvisible --pid "$picture_program" 2>/dev/null | head -n 1)
        [[ $window ]]; do
        check_and_sleep "$deadline" 'no window was shown'
    done
}

# Waits until two consecutive screenshots of the window are the same and have more than one colour.
# The last one is window.png.
await_contents() {
    local window=$1 deadline=$((SECONDS + picture_timeout)) colours='' previous='' current=''
    until [[ ${colours:-1} != 1 && $current == "$previous" ]]; do
        check_and_sleep "$deadline" 'the window was not painted'
        previous=$current
        import -silent -window "$window" -strip "$picture_folder/window.png" 2>/dev/null || continue
        read -r colours current < <(identify -format '%k %#\n' "$picture_folder/window.png")
    done
}

# check_and_sleep DEADLINE MESSAGE
# Fails if the program has ended, or with the message after the deadline.
check_and_sleep() {
    if ! kill -0 "$picture_program" 2>/dev/null; then
        local status=0
        wait "$picture_program" || status=$?
        fail_with_output "the program ended with status $status before the screenshot was taken"
    fi
    ((SECONDS < $1)) || fail_with_output "$2 within $picture_timeout seconds"
    sleep 0.05
}

fail_with_output() {
    printf 'Output of the program:\n' >&2
    cat "$picture_folder/program.log" >&2
    fail "$1"
}
