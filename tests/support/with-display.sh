#!/usr/bin/env bash
# Runs a command on an X server of its own, without a window manager.
#   with-display.sh [--screen WIDTHxHEIGHT] COMMAND [ARGUMENT...]
set -eu
screen=1280x1024
if [ "$1" = --screen ]; then
    screen=$2
    shift 2
fi
exec {number}<> <(:)
Xvfb -displayfd "$number" -screen 0 "${screen}x24" -nolisten tcp -noreset 2>/dev/null &
server=$!
trap 'kill $server' EXIT
read -r display <&"$number"
DISPLAY=:$display "$@"
