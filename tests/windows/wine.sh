# What the scripts share that run programs under Wine: a display and a Windows of their own, and how tests report. A
# script starts with `begin SCRIPT SCREEN "$@"`, from the top of the source tree; one of tests ends with `finish`.
# shellcheck shell=bash disable=SC2034
. tests/results.sh

limit=120  # seconds, for a program

# The script's own path, the size of its screen, and its arguments, of which the first is a cross build: sets `build`, and
# `work` for files.
begin() {
    local script=$1 screen=$2 first
    shift 2
    build=$(realpath "${1:-build/windows-x64}")
    [[ $script = bench/* ]] || on_one_processor
    if [ "${KEL_INSIDE_DISPLAY:-}" != "$script $build" ]; then
        # Scripts side by side look for a free display from different numbers on, as the search is a race.
        first=$(cksum <<<"$script $build" | cut -d ' ' -f 1)
        exec env KEL_INSIDE_DISPLAY="$script $build" xvfb-run -a -n $((first % 800 + 100)) -s "-screen 0 ${screen}x24" \
            "$script" "$build" "${@:2}"
    fi
    unset KEL_INSIDE_DISPLAY
    export WINEPREFIX=$build/wine-${script//\//-} WINEDEBUG=-all WINEARCH=win64
    [[ $build != *x86 ]] || WINEARCH=win32
    export WINEDLLOVERRIDES="mscoree=;mshtml=;winedbg.exe=d"
    work=$build/$script
    results=$work/results
    rm -rf "$work"
    mkdir -p "$work"
    : >"$results"
    trap drop_prefix EXIT
    # Wine's own programs are in no group that a key ends.
    trap 'exit 130' INT TERM
    # Wine that has just been ended elsewhere may be in the way of one that begins.
    make_prefix || make_prefix || { failed wine "no prefix could be made"; finish; }
    wineserver -w
    wineserver -p60 >/dev/null 2>&1
    # Without a window manager nobody answers a managed window.
    windows reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
}

# A program under Wine, its server and the display answer one another all the time, and waking one another up on another
# processor takes most of a virtual machine's time: on one it is a third of the work. Scripts of the two bitnesses, which
# go on side by side, take different ones.
on_one_processor() {
    local all
    all=$(taskset -cp $$) || return 0
    all=${all##* }
    if [[ $build = *x86 ]]; then all=${all##*[,-]}; else all=${all%%[,-]*}; fi
    taskset -cp "$all" $$ >/dev/null
}

# What still runs in it first: it writes its registry when it ends, wherever that is by then.
drop_prefix() {
    wineserver -k 2>/dev/null || :
    wineserver -w 2>/dev/null || :
    rm -rf "$WINEPREFIX"
}

# A Windows program; its background services must not hold on to our output.
windows() { timeout "$limit" wine "$@" </dev/null 2>>"$work/wine.log"; }
path() {
    local path=Z:$1
    path=${path/#Z:$WINEPREFIX\/drive_c/C:}
    echo "${path//\//\\}"
}

# Everything that registration may touch, one line a value.
registry() {
    local branch
    for branch in 'HKLM\Software\Classes' 'HKCU\Software\Classes' "$@"; do
        exported "$branch" || exported "$branch" || failed registry "$branch cannot be read" >&2
    done
}

# A branch; nothing where there is none. One that is left out by mistake would look like one that is as it was.
exported() {
    local file=$work/branch.reg
    rm -f "$file"
    if windows reg export "$1" "$(path "$file")" /y >/dev/null 2>&1; then
        [ -s "$file" ] && iconv -f utf-16 -t utf-8 "$file"
    else
        [[ $(windows reg query "$1") = *'Unable to find the specified registry key'* ]]
    fi
}

# A system for the programs to run in, without anything of theirs: a copy of one that is made once for a build.
make_prefix() {
    local fresh=$build/wine-fresh
    drop_prefix
    (
        flock 9
        [ -f "$fresh/made" ] && cp -a "$fresh" "$WINEPREFIX" && exit
        rm -rf "$fresh"
        timeout 300 wineboot -i >>"$work/wineboot.log" 2>&1 </dev/null 9>&- && wineserver -w && touch "$WINEPREFIX/made" &&
            cp -a "$WINEPREFIX" "$fresh"
    ) 9>"$fresh.lock"
}

# Registers the servers of a folder, or with /u takes it back.
both() {
    local folder=$1 file
    shift
    for file in KelControls8.ocx KelRuntime8.dll; do windows regsvr32 /s "$@" "$(path "$folder/$file")" || return; done
}

# Script hosts end silently on an error: the last line must be there.
script() {
    local script=$1 output scripts=tests/windows/ole/scripts
    { cat "$scripts/common.vbs" "$scripts/$script.vbs"; echo 'WScript.Echo "the end"'; } >"$work/$script.vbs"
    output=$(windows cscript //nologo "$(path "$work/$script.vbs")" | tr -d '\r')
    reported "$output"
    grep -qx 'the end' <<<"$output" || failed "script_$script" "the script stopped"
}

finish() {
    sum_up
    exit
}
