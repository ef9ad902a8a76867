#!/usr/bin/env bash
# The life of the Debian package in a root of its own: over a version that kept its data in
# /usr/share/brixola itself, started, removed, purged; what users saved has to stay.
#
#   package-life.sh PACKAGE.deb SUITE      # bookworm or trixie; takes root, debootstrap and a mirror
set -euo pipefail
package=$(realpath "$1")
suite=$2
if [ -z "${IN_NAMESPACE:-}" ]; then
    IN_NAMESPACE=1 exec unshare --mount --pid --fork "$0" "$package" "$suite"
fi
root=$(mktemp -d)
chmod 755 "$root"
trap 'umount -l "$root/proc" "$root/dev" 2>/dev/null; rm -rf --one-file-system "$root"' EXIT

say() { printf '== %s\n' "$1"; }
inside() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive HOME=/root sh -euc "$1"; }
expect() { inside "$1" || { echo "package-life.sh: not so: $1" >&2; exit 1; }; }

say "a bare $suite"
debootstrap --variant=minbase "$suite" "$root" >"$root.log" 2>&1 || { tail "$root.log" >&2; exit 1; }
rm "$root.log"
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
inside 'useradd -m ann; useradd -m bob'

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
inside 'apt-get update -q >/dev/null; apt-get install -q -y --no-install-recommends /new.deb >/log 2>&1 ||
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

say "installed anew, removed, purged"
inside 'dpkg -i /new.deb >/dev/null; dpkg -r brixola-press-desk >/dev/null 2>&1
    dpkg -P brixola-press-desk >/dev/null 2>&1'
expect '[ ! -e /usr/bin/brixola-press-desk ] && [ ! -L /usr/share/brixola ]'
expect '[ "$(cat /var/lib/brixola/bob/Office.cfg)" = PageSize=A5 ]'
say "all as expected on $suite"
