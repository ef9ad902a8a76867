#!/usr/bin/env bash
# Plays privileged.case: the panel with the real sudo and su. Only root can, since it takes a user
# with a password, and sudo and su work in no sandbox that an ordinary user can make.
#
#   run-privileged.sh BUILD [ARGUMENT...]     BUILD: a build folder; arguments go to pressdesk-play
#
# The machine stays as it is: everything happens in mount, process and network namespaces with an
# /etc, /run, /tmp, /usr/local/bin and /usr/share/brixola of their own, in memory, which end with
# the test.
set -eu

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
checkout=$(cd "$here/../.." && pwd -P)
# The player knows this user's folders, and where the scheduler's socket and files are.
user=tester
uid=21007
server=/tmp/cups
dir=/tmp/privileged

fail()
{
    echo "run-privileged.sh: $*" >&2
    exit 1
}

# Hides what is below a folder behind another one, in this namespace alone.
cover()
{
    [ ! -d "$2" ] || mount --bind "$1" "$2"
}

# /usr/share/brixola may be missing on the machine, and must not come to be on it: so /usr/share is
# put together anew.
cover_usr_share()
{
    local entry name
    mkdir "$dir/share" "$dir/brixola"
    chmod 1777 "$dir/brixola"
    mount --bind /usr/share "$dir/share"
    mount -t tmpfs -o mode=755 tmpfs /usr/share
    for entry in "$dir"/share/*; do
        name=${entry##*/}
        if [ "$name" = brixola ]; then
            continue
        elif [ -L "$entry" ]; then
            cp -P "$entry" "/usr/share/$name"
        elif [ -d "$entry" ]; then
            mkdir "/usr/share/$name"
            mount --bind "$entry" "/usr/share/$name"
        else
            cp "$entry" "/usr/share/$name"
        fi
    done
    mkdir /usr/share/brixola
    mount --bind "$dir/brixola" /usr/share/brixola
}

# A user who may become root through sudo, with a password of its own, and one for root. Nobody but
# the panel can use them, so they may be known.
add_accounts()
{
    local etc=$1
    sed -i "/^$user:/d" "$etc/passwd" "$etc/shadow" "$etc/group"
    echo "$user:x:$uid:$uid:Press Desk test:$dir/home:/bin/sh" >>"$etc/passwd"
    echo "$user:x:$uid:" >>"$etc/group"
    echo "$user:$(openssl passwd -6 users):19000:0:99999:7:::" >>"$etc/shadow"
    sed -i '/^root:/d' "$etc/shadow"
    echo "root:$(openssl passwd -6 roots):19000:0:99999:7:::" >>"$etc/shadow"
    mkdir -p "$etc/sudoers.d"
    echo "$user ALL=(ALL:ALL) ALL" >"$etc/sudoers.d/$user"
    chmod 0440 "$etc/sudoers.d/$user"
    grep -q '^[@#]includedir /etc/sudoers.d' "$etc/sudoers" ||
        echo '@includedir /etc/sudoers.d' >>"$etc/sudoers"
}

lay_files()
{
    mkdir "$dir"
    cp -a /etc "$dir/etc"
    rm -rf "$dir/etc/cups"
    mkdir -p "$dir/etc/cups/ppd" "$dir/home" "$dir/bin" "$dir/run" "$dir/sudo"
    add_accounts "$dir/etc"
    # Root gets none of the user's environment.
    echo "ServerName $server/cups.sock" >"$dir/etc/cups/client.conf"
    install -m 755 "$checkout/demo/bixPPDWrite_F" "$dir/bin"
    # The scheduler is the user's, and so are its folders.
    chown -R "$uid:$uid" "$dir/etc/cups" "$dir/home"
}

cover_machine()
{
    cover_usr_share
    cover "$dir/etc" /etc
    cover "$dir/run" /run
    cover "$dir/bin" /usr/local/bin
    cover "$dir/sudo" /var/lib/sudo
}

as_user()
{
    setpriv --reuid "$uid" --regid "$uid" --clear-groups "$@"
}

play()
{
    local player=$build/tests/player/pressdesk-play
    mount -t tmpfs -o mode=1777 tmpfs /tmp
    as_user test -x "$player" || fail "only root can reach $player"
    lay_files
    cover_machine
    ip link set lo up 2>/dev/null || true
    # Queue names are read from /etc/cups/ppd, so the scheduler's folder has to be that one.
    as_user env --ignore-environment PATH=/usr/local/bin:/usr/bin:/bin \
        LANG=C.UTF-8 HOME="$dir/home" USER="$user" LOGNAME="$user" PRESSDESK_SANDBOX="$dir" \
        QT_HASH_SEED=0 PRESSDESK_BUILD_DIR="$build" "$checkout/demo/printserver.sh" serve "$server" "$player" "$@" \
        "$here/privileged.case"
}

[ $# -ge 1 ] || fail "usage: run-privileged.sh BUILD [ARGUMENT...]"
[ "$(id -u)" -eq 0 ] || fail "only root can lay out what this test needs"
for tool in unshare setpriv sudo su openssl cupsd; do
    command -v "$tool" >/dev/null || fail "$tool is missing"
done

if [ "${1:-}" != --inside ]; then
    build=$(cd "$1" && pwd -P)
    shift
    exec unshare --mount --propagation private --net --pid --fork --kill-child --mount-proc \
        "$here/run-privileged.sh" --inside "$build" "$@"
else
    build=$2
    shift 2
    play "$@"
fi
