# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Takes screenshots of a program's window on a virtual display. Sourced by scripts/run and
# scripts/test-package.

# Seconds after which the display, the window or the window's contents count as missing.
readonly screenshot_timeout=60

# take_screenshot FILE PROGRAM [ARGUMENT]...
# Starts the program on a virtual display and saves a screenshot of its window as FILE.
take_screenshot() {
    local file=$1
    shift

    screenshot_folder=$(mktemp -d)
    screenshot_processes=()
    trap end_processes EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM

    start_display
    "$@" >"$screenshot_folder/program.log" 2>&1 &
    screenshot_program=$!
    screenshot_processes=("$screenshot_program" "${screenshot_processes[@]}")

    local window
    find_window
    await_contents "$window"
    mv "$screenshot_folder/window.png" "$file"
}

# Ends the processes in screenshot_processes in order, then the display.
end_processes() {
    local process
    for process in "${screenshot_processes[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    if [[ ${display_runner-} ]]; then
        kill "${display_command:-$display_runner}" 2>/dev/null || true
        wait "$display_runner" 2>/dev/null || true
    fi
    rm -rf "$screenshot_folder"
}

# Starts a display that only programs with the cookie in XAUTHORITY can use, because the window on
# the display shows a password.
start_display() {
    local output
    export XAUTHORITY=$screenshot_folder/authority

    # xvfb-run starts a shell, which prints its process id and the display, and then waits. When
    # this shell ends, xvfb-run ends the display.
    # shellcheck disable=SC2016 # expanded by the shell that xvfb-run starts
    exec {output}< <(exec xvfb-run --auto-servernum --auth-file="$XAUTHORITY" \
        --error-file="$screenshot_folder/display.log" --server-args='-screen 0 1280x900x24' \
        sh -c 'echo "$$ $DISPLAY"; exec sleep infinity' 2>>"$screenshot_folder/display.log")
    display_runner=$!
    if ! read -r -t "$screenshot_timeout" -u "$output" display_command DISPLAY; then
        cat "$screenshot_folder/display.log" >&2
        fail 'the virtual display did not start'
    fi
    exec {output}<&-
    export DISPLAY QT_QPA_PLATFORM=xcb
}

# Waits for the first visible window of the program and sets $window to its id.
find_window() {
    local deadline=$((SECONDS + screenshot_timeout))
    until window=$(xdotool search --onlyvisible --pid "$screenshot_program" 2>/dev/null | head -n 1)
        [[ $window ]]; do
        check_and_sleep "$deadline" 'no window was shown'
    done
}

# Waits until two consecutive screenshots of the window are the same and have more than one colour.
# The last screenshot is window.png.
await_contents() {
    local window=$1 deadline=$((SECONDS + screenshot_timeout)) colours='' previous='' current=''
    until [[ ${colours:-1} != 1 && $current == "$previous" ]]; do
        check_and_sleep "$deadline" 'the window was not painted'
        previous=$current
        import -silent -window "$window" -strip "$screenshot_folder/window.png" 2>/dev/null \
            || continue
        read -r colours current < <(identify -format '%k %#\n' "$screenshot_folder/window.png")
    done
}

# check_and_sleep DEADLINE MESSAGE
# Fails if the program has ended, and fails with the message if the deadline has passed.
check_and_sleep() {
    if ! kill -0 "$screenshot_program" 2>/dev/null; then
        local status=0
        wait "$screenshot_program" || status=$?
        fail_with_output "the program ended with status $status before the screenshot was taken"
    fi
    ((SECONDS < $1)) || fail_with_output "$2 within $screenshot_timeout seconds"
    sleep 0.05
}

fail_with_output() {
    printf 'Output of the program:\n' >&2
    cat "$screenshot_folder/program.log" >&2
    fail "$1"
}
