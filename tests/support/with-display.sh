#!/usr/bin/env bash
# Runs a command on an X server of its own, without a window manager.
#   with-display.sh COMMAND [ARGUMENT...]
set -eu
exec {number}<> <(:)
Xvfb -displayfd "$number" -screen 0 1280x1024x24 -nolisten tcp -noreset 2>/dev/null &
server=$!
trap 'kill $server' EXIT
read -r display <&"$number"
DISPLAY=:$display "$@"
