#!/usr/bin/env bash
# The two commands of the README on a bare Debian with only git, g++ and cmake: ./run without a
# display takes the tour, ./test runs every test. From a clone of the checkout's last commit.
#
#   bare-system.sh SUITE        # bookworm or trixie; takes root, debootstrap, a mirror, 25 minutes
set -euo pipefail
suite=$1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
source "$here/bare-root.sh"

bare_system "$suite"
inside 'apt-get install -q -y --no-install-recommends git g++ cmake ca-certificates >/log 2>&1 ||
    { tail /log; exit 1; }'
git clone -q "$(git -C "$here" rev-parse --show-toplevel)" "$root/root/press-desk"

say "./run"
expect 'cd /root/press-desk && ./run >/log 2>&1 || { tail -n 30 /log; exit 1; }
    ls build/tour/*.png | wc -l'
say "./test"
expect 'cd /root/press-desk && ./test >/log 2>&1 || { tail -n 60 /log; exit 1; }
    grep "tests passed" /log'
say "both as expected on $suite"
