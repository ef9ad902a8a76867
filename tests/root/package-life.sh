#!/usr/bin/env bash
# The life of the Debian package in a root of its own: over a version that kept its data in
# /usr/share/brixola itself, started, removed, purged; what users saved has to stay.
#
#   package-life.sh PACKAGE.deb SUITE      # bookworm or trixie; takes root, debootstrap and a mirror
#
# The package is that of the release build, whose player does the main job on the installed program.
set -euo pipefail
package=$(realpath "$1")
suite=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
checkout=$(cd "$here/../.." && pwd -P)
source "$here/bare-root.sh"

bare_system "$suite"
inside 'useradd -m ann; useradd -m bob; useradd -m tester'

say "the version before, with what users saved"
mkdir -p "$root/old/DEBIAN" "$root/old/usr/share/brixola/ppd6"
chmod 1777 "$root/old/usr/share/brixola"
printf '%s\n' 'Package: brixola-press-desk' 'Version: 5.9.0' 'Architecture: all' \
    'Maintainer: nobody <nobody@brixola.example>' 'Description: old' >"$root/old/DEBIAN/control"
cp "$package" "$root/new.deb"
inside 'dpkg-deb -b /old /old.deb >/dev/null; dpkg -i /old.deb >/dev/null
    for user in ann bob; do
        install -d -o $user -g $user -m 700 /usr/share/brixola/$user
        su $user -c "echo PageSize=A5 >/usr/share/brixola/$user/Office.cfg"
    done'

say "the new one over it"
inside 'apt-get install -q -y --no-install-recommends /new.deb >/log 2>&1 ||
    { tail /log; exit 1; }'
expect '[ "$(readlink /usr/share/brixola)" = /var/lib/brixola ]'
expect '[ "$(stat -c "%a %U" /var/lib/brixola /var/lib/brixola/ppd6 | xargs)" = "1777 root 755 root" ]'
expect 'for user in ann bob; do
    [ "$(stat -c "%a %U" /var/lib/brixola/$user)" = "700 $user" ]
    [ "$(cat /usr/share/brixola/$user/Office.cfg)" = PageSize=A5 ]; done'

say "started"
expect 'su ann -c "USER=ann brixola-press-desk --telemetry False"
    grep -q Telemetry=False /var/lib/brixola/ann/Settings'
expect 'status=0; su ann -c "USER=ann QT_QPA_PLATFORM=offscreen timeout 5 brixola-press-desk" || status=$?
    [ $status -eq 124 ]'

say "its PPDs for the details of profiles"
lend "$checkout"/{demo,tests} "$checkout"/build/release/{src/brixola-press-desk,tests/player,tests/plugins}
expect "brixola-press-desk-ppds $checkout/demo/ppd/px4500.ppd &&
    cmp $checkout/demo/ppd/px4500.ppd /usr/share/brixola/ppd6/Brixola_PX-4500.ppd"

say "installed anew, removed, purged"
inside 'dpkg -i /new.deb >/dev/null; dpkg -r brixola-press-desk >/dev/null 2>&1
    dpkg -P brixola-press-desk >/dev/null 2>&1'
expect '[ ! -e /usr/bin/brixola-press-desk ] && [ ! -L /usr/share/brixola ]'
expect '[ "$(cat /var/lib/brixola/bob/Office.cfg)" = PageSize=A5 ]'

say "what the README removes, and the main job on a fresh installation"
inside 'rm -r /var/lib/brixola
    dpkg -i /new.deb >/dev/null
    apt-get install -q -y --no-install-recommends cups-daemon procps libqt5test5 >/log 2>&1 || { tail /log; exit 1; }
    install -d -o tester -m 700 /etc/cups/ppd /run/tester
    printf "%s\n" "#!/bin/sh" "shift" "exec /usr/bin/brixola-press-desk \"\$@\"" >/installed
    chmod +x /installed'
expect "su tester -c 'USER=tester XDG_RUNTIME_DIR=/run/tester PRESSDESK_SANDBOX=/tmp $checkout/demo/printserver.sh serve /tmp/cups \
    $checkout/build/release/tests/player/pressdesk-play $checkout/tests/root/installed.case'"
say "all as expected on $suite"
