#!/usr/bin/env bash
# Runs a command where it can neither see nor change the machine's own printing set-up.
#
#   sandbox.sh [--dir S] COMMAND [ARGUMENT...]
#
# Inside, the caller (root included) is the user "tester" with uid 1000, an empty home, the system
# folder /usr/share/brixola with the sample PPDs, an empty /etc/cups whose ppd folder is S/ppd, its
# own /tmp and /run, and no network but loopback. Everything else of the host is read-only; only S
# and the build folder can be written. The exit status is the command's.
#
# --dir S     keep the sandbox's files in S, to look at them afterwards (S/home, S/brixola, S/ppd);
#             without it they lie below ${TMPDIR:-/tmp} and are removed at the end
#
# Environment read from the caller:
#   PRESSDESK_BUILD_DIR                     build folder to make writable, default CHECKOUT/build
#   SANDBOX_LANG                            LANG inside, default C.UTF-8
#   SANDBOX_LC_ALL, SANDBOX_LANGUAGE        LC_ALL and LANGUAGE inside, unset by default
#   SANDBOX_DISPLAY=1                       let the command reach the caller's display
#   PRESSDESK_HASH_SEED                     QT_HASH_SEED inside, to try another order of Qt's hashes
# Inside, PRESSDESK_SANDBOX names S. QT_* variables (QT_HASH_SEED, QT_QPA_PLATFORM) pass through.
set -eu

checkout=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)

# What would let the caller's desktop, printers or proxies show through.
leftovers=(
    LC_ALL LANGUAGE LC_CTYPE LC_MESSAGES LC_NUMERIC LC_TIME LC_COLLATE LC_MONETARY LC_PAPER
    LC_NAME LC_ADDRESS LC_TELEPHONE LC_MEASUREMENT LC_IDENTIFICATION
    CUPS_SERVER CUPS_SERVERROOT CUPS_USER CUPS_ENCRYPTION CUPS_DATADIR CUPS_STATEDIR CUPS_CACHEDIR
    CUPS_SERVERBIN IPP_PORT PRINTER LPDEST
    http_proxy https_proxy ftp_proxy all_proxy no_proxy HTTP_PROXY HTTPS_PROXY ALL_PROXY NO_PROXY
    XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME XDG_CONFIG_DIRS XDG_SESSION_ID
    XDG_SESSION_TYPE DBUS_SESSION_BUS_ADDRESS SESSION_MANAGER DESKTOP_SESSION TMPDIR
    DISPLAY WAYLAND_DISPLAY XAUTHORITY SUDO_USER SUDO_UID SUDO_GID SUDO_COMMAND
)
# What makes a program look like the rest of the desktop: wanted only where somebody sees it.
desktop_look=(
    XDG_CURRENT_DESKTOP XDG_DATA_DIRS QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE GTK_THEME
    KDE_FULL_SESSION KDE_SESSION_VERSION GNOME_DESKTOP_SESSION_ID
)

bwrap_args=()

fail()
{
    echo "sandbox.sh: $*" >&2
    exit 125
}

lay_files()
{
    local dir=$1
    mkdir -p "$dir/ppd" "$dir/brixola" "$dir/home"
    chmod 1777 "$dir/brixola"
    mkdir "$dir/brixola/ppd6"
    "$checkout/packaging/brixola-press-desk-ppds" --into "$dir/brixola/ppd6" \
        "$checkout"/demo/ppd/*.ppd >/dev/null
    # The scheduler does not start for a user without an entry.
    cat >"$dir/passwd" <<PASSWD
root:x:0:0:root:/root:/bin/sh
tester:x:1000:1000:Tester:/home/tester:/bin/sh
nobody:x:65534:65534:nobody:/nonexistent:/usr/sbin/nologin
PASSWD
    cat >"$dir/group" <<GROUP
root:x:0:
lp:x:7:
tester:x:1000:
nogroup:x:65534:
GROUP
}

# /usr/share/brixola may be missing on the host, and nothing can be made in a read-only folder:
# so /usr/share is put together anew from the host's entries.
add_usr_share()
{
    local entry
    bwrap_args+=(--tmpfs /usr/share)
    for entry in /usr/share/*; do
        if [ "$entry" = /usr/share/brixola ]; then
            continue
        elif [ -L "$entry" ]; then
            bwrap_args+=(--symlink "$(readlink "$entry")" "$entry")
        else
            bwrap_args+=(--ro-bind-try "$entry" "$entry")
        fi
    done
    bwrap_args+=(--bind "$1" /usr/share/brixola --remount-ro /usr/share)
}

add_file_system()
{
    local dir=$1
    # /dev is a private one, since root would otherwise keep its hold on the machine's devices.
    bwrap_args+=(--ro-bind / / --dev /dev --proc /proc)
    add_usr_share "$dir/brixola"
    bwrap_args+=(
        --ro-bind "$dir/passwd" /etc/passwd --ro-bind "$dir/group" /etc/group
        --tmpfs /etc/cups --bind "$dir/ppd" /etc/cups/ppd
        --tmpfs /home --bind "$dir/home" /home/tester
        --tmpfs /run --perms 0700 --dir /run/user/1000
        # An X server inside cannot make its socket folder itself, not being root.
        --perms 1777 --tmpfs /tmp --perms 1777 --dir /tmp/.X11-unix
        # Named again, because they may lie below one of the folders replaced above.
        --ro-bind "$checkout" "$checkout"
    )
    if [ -n "$build" ]; then
        bwrap_args+=(--bind "$build" "$build")
    fi
    bwrap_args+=(--bind "$dir" "$dir")
}

add_environment()
{
    local name
    for name in "${leftovers[@]}"; do
        bwrap_args+=(--unsetenv "$name")
    done
    bwrap_args+=(
        --setenv HOME /home/tester --setenv USER tester --setenv LOGNAME tester
        --setenv LANG "${SANDBOX_LANG:-C.UTF-8}"
        --setenv XDG_RUNTIME_DIR /run/user/1000
        --setenv PRESSDESK_SANDBOX "$1"
    )
    if [ -n "$build" ]; then
        bwrap_args+=(--setenv PRESSDESK_BUILD_DIR "$build")
    fi
    if [ -n "${SANDBOX_LC_ALL:-}" ]; then
        bwrap_args+=(--setenv LC_ALL "$SANDBOX_LC_ALL")
    fi
    if [ -n "${SANDBOX_LANGUAGE:-}" ]; then
        bwrap_args+=(--setenv LANGUAGE "$SANDBOX_LANGUAGE")
    fi
    if [ -n "${PRESSDESK_HASH_SEED:-}" ]; then
        bwrap_args+=(--setenv QT_HASH_SEED "$PRESSDESK_HASH_SEED")
    fi
}

add_network_and_namespaces()
{
    bwrap_args+=(--unshare-user --unshare-pid --die-with-parent --uid 1000 --gid 1000)
    # An X server reached through TCP (as ssh forwards it) needs the host's loopback.
    case "${SANDBOX_DISPLAY:-}${DISPLAY:-}" in
        1:*|1unix:*|1) bwrap_args+=(--unshare-net) ;;
        1*) ;;
        *) bwrap_args+=(--unshare-net --unshare-ipc) ;;
    esac
}

# The X server first: Qt's Wayland plugin is not everywhere, and desktops on Wayland serve X too.
add_display()
{
    local name cookies=${XAUTHORITY:-${HOME:-/nonexistent}/.Xauthority}
    if [ "${SANDBOX_DISPLAY:-}" != 1 ]; then
        for name in "${desktop_look[@]}"; do
            bwrap_args+=(--unsetenv "$name")
        done
    elif [ -n "${DISPLAY:-}" ]; then
        bwrap_args+=(--setenv DISPLAY "$DISPLAY" --ro-bind-try /tmp/.X11-unix /tmp/.X11-unix)
        # Its content, since the file may belong to the user who became root.
        if [ -r "$cookies" ]; then
            exec {cookies_fd}<"$cookies"
            bwrap_args+=(
                --perms 0600 --file "$cookies_fd" /run/user/1000/Xauthority
                --setenv XAUTHORITY /run/user/1000/Xauthority
            )
        fi
    elif [ -n "${WAYLAND_DISPLAY:-}" ]; then
        local socket=$WAYLAND_DISPLAY
        case $socket in
            /*) ;;
            *) socket=${XDG_RUNTIME_DIR:-/run/user/$(id -u)}/$socket ;;
        esac
        bwrap_args+=(
            --bind "$socket" /run/user/1000/wayland-0
            --setenv WAYLAND_DISPLAY wayland-0 --setenv QT_QPA_PLATFORM wayland
        )
    fi
}

find_build_dir()
{
    build=${PRESSDESK_BUILD_DIR:-$checkout/build}
    if [ -d "$build" ]; then
        build=$(cd "$build" && pwd -P)
    elif [ -n "${PRESSDESK_BUILD_DIR:-}" ]; then
        fail "no build folder $build"
    else
        build=
    fi
}

main()
{
    local dir=
    if [ "${1:-}" = --dir ]; then
        [ $# -ge 2 ] || fail "--dir needs a folder"
        dir=$2
        shift 2
    fi
    [ $# -ge 1 ] || fail "usage: sandbox.sh [--dir S] COMMAND [ARGUMENT...]"
    command -v bwrap >/dev/null || fail "bwrap (package bubblewrap) is missing"
    find_build_dir

    if [ -n "$dir" ]; then
        mkdir -p "$dir"
    else
        dir=$(mktemp -d "${TMPDIR:-/tmp}/pressdesk.XXXXXX")
        temporary=$dir
        trap 'rm -rf "$temporary"' EXIT
    fi
    dir=$(cd "$dir" && pwd -P)

    lay_files "$dir"
    add_file_system "$dir"
    add_environment "$dir"
    add_network_and_namespaces
    add_display
    bwrap "${bwrap_args[@]}" -- "$@"
}

main "$@"
