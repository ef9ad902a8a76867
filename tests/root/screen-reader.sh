#!/usr/bin/env bash
# What a screen reader says of the main job done by keys: Orca and the installed package in a root of
# their own, with a desktop's accessibility bus and a speech that nobody hears.
#
#   screen-reader.sh PACKAGE.deb SUITE     # bookworm or trixie; takes root, debootstrap and a mirror
set -euo pipefail
package=$(realpath "$1")
suite=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
checkout=$(cd "$here/../.." && pwd -P)
source "$here/bare-root.sh"

bare_system "$suite"
say "Orca and the panel"
cp "$package" "$root/new.deb"
inside 'useradd -m tester
    apt-get install -q -y --no-install-recommends /new.deb cups-daemon procps fonts-dejavu-core \
        orca speech-dispatcher at-spi2-core dbus-daemon xvfb openbox xdotool >/log 2>&1 ||
        { tail /log; exit 1; }
    printf "pcm.!default { type null }\nctl.!default { type null }\n" >/etc/asound.conf
    printf "%s\n" "GenericExecuteSynth \"echo \\\"\$DATA\\\" >>/tmp/said\"" "AddVoice \"en\" \"MALE1\" \"quiet\"" \
        >/etc/speech-dispatcher/modules/quiet.conf
    printf "%s\n" "AddModule \"quiet\" \"sd_generic\" \"quiet.conf\"" "DefaultModule quiet" \
        "AudioOutputMethod \"alsa\"" \
        >>/etc/speech-dispatcher/speechd.conf
    install -d -o tester -m 700 /etc/cups/ppd /run/tester
    install -d -m 1777 /tmp/.X11-unix
    su tester -c "USER=tester brixola-press-desk --telemetry False"'
lend "$checkout"/{demo,tests/root/screen-reader-session.sh}

say "the main job, heard"
expect "for try in 1 2 3 4 5; do
    rm -rf /tmp/.X5-lock /tmp/.X11-unix/* /tmp/said /tmp/cups /run/tester/*
    status=0
    su tester -c 'USER=tester XDG_RUNTIME_DIR=/run/tester PRESSDESK_SANDBOX=/tmp \
        $checkout/demo/printserver.sh with /tmp/cups dbus-run-session -- \
        bash $checkout/tests/root/screen-reader-session.sh' || status=\$?
    [ \$status -eq 75 ] || exit \$status
done; exit 1"
say "all said as expected on $suite"
