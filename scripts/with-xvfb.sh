#!/usr/bin/env bash
# Runs a command with an X server of its own, in memory: scripts/with-xvfb.sh COMMAND [ARGUMENT..]
set -euo pipefail

# The server picks a free display number and tells it on its output. Without -noreset it would start
# anew each time that its last client leaves.
coproc XVFB { exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp 2>/dev/null; }
server=$XVFB_PID
# shellcheck disable=SC2064
trap "kill $server 2>/dev/null || true" EXIT
if ! read -r -t 60 number <&"${XVFB[0]}"; then
  echo "with-xvfb.sh: Xvfb does not start" >&2
  exit 1
fi
DISPLAY=":$number" "$@"
