#!/usr/bin/env bash
# Runs a command on an X server of its own, with a window manager, and ends both afterwards.
#   xsession.sh [--size WIDTHxHEIGHT] COMMAND [ARGUMENT...]
# The exit status is the command's; 125 when there is no server or no window manager.
set -u
size=2200x1600
if [ "${1:-}" = --size ]; then
    size=$2
    shift 2
fi
scratch=$(mktemp -d)
server=
manager=
cleanup() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null
    [ -z "$server" ] || kill "$server" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$scratch"
}
trap cleanup EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM
give_up() {
    echo "xsession: $1" >&2
    cat "$scratch"/*.log >&2
    exit 125
}

# wait_for SECONDS COMMAND...: until the command succeeds
wait_for() {
    local tries=$(($1 * 20))
    shift
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || return 1
        sleep 0.05
    done
}

# Neither outlives this script, not even when it is killed.
bound=()
command -v setpriv >/dev/null && bound=(setpriv --pdeathsig KILL)

# The server picks a free display itself and says which.
mkfifo "$scratch/display"
"${bound[@]}" Xvfb -displayfd 3 -screen 0 "${size}x24" -dpi 96 -nolisten tcp \
    3<>"$scratch/display" >"$scratch/server.log" 2>&1 &
server=$!
read -r -t 20 number <>"$scratch/display" || give_up "no X server"
export DISPLAY=":$number"

"${bound[@]}" openbox >"$scratch/manager.log" 2>&1 &
manager=$!
managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
wait_for 60 managed || give_up "no window manager"

"$@"
