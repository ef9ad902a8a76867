#!/usr/bin/env bash
# The Debian package, as a distribution judges it: lintian, the desktop file, the component's
# metadata and the man page, all without a warning. Takes the release build.
set -euo pipefail
build=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/release
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

(cd "$build" && cpack -B "$work" >"$work/log") || { cat "$work/log" >&2; exit 1; }
package=$(compgen -G "$work/*.deb")
dpkg-deb -x "$package" "$work/tree"

findings()
{
    # It warns of root, as which CI runs.
    lintian --tag-display-limit 0 "$package" 2>/dev/null
    desktop-file-validate "$work"/tree/usr/share/applications/*.desktop
    appstreamcli validate-tree --no-net --no-color "$work/tree" | grep -E '^[EWI]:' || :
    for page in "$work"/tree/usr/share/man/man*/*.gz; do
        LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 \
            >/dev/null
    done
}
found=$(findings) || { echo "a validator failed" >&2; exit 1; }
if [ -n "$found" ]; then
    echo "$found" >&2
    exit 1
fi
echo "$(basename "$package"): no finding"
