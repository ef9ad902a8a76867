#!/usr/bin/env bash
# A private print server of the caller's own, apart from the machine's.
#
#   printserver.sh start DIR                      start it, print the lines that point clients to it
#   printserver.sh queues DIR                     add the five sample queues
#   printserver.sh add DIR NAME PPDFILE [URI]     add one queue (URI: file:///dev/null)
#   printserver.sh remove DIR NAME                remove one queue
#   printserver.sh many DIR COUNT PPDFILE [NAME]  lay COUNT queues, NAME1 (Queue1) and so on, into
#                                                 DIR for the next start
#   printserver.sh stop DIR                       stop it and wait until it is gone
#   printserver.sh serve DIR COMMAND...           run a command on a print server without queues
#   printserver.sh with DIR COMMAND...            run a command on the five sample queues
#
# Everything of it lies below DIR, with the socket at DIR/cups.sock. In the sandbox, where
# /etc/cups/ppd is private, its ppd folder is that one, since the panel looks there for queues.
#
#   eval "$(printserver.sh start DIR)"
set -eu

demo=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)

# cupsd and lpadmin are not in an ordinary user's search path.
PATH=$PATH:/usr/sbin:/sbin

# Name and PPD of each sample queue. Lobby_Generic is another maker's, which the panel leaves out.
sample_queues=(
    Office_C3     px4500.ppd
    Warehouse_M1  mx210.ppd
    Ratex_200     ratex200.ppd
    Dual_Path     px-dual.ppd
    Lobby_Generic generic.ppd
)
# What is fitted to Office_C3 before anybody looks at it ("with"), so that all pages can be used.
office_hardware=(Option17=Finisher2 Option18=HardDisk Option19=True Option22=True)

fail()
{
    echo "printserver.sh: $*" >&2
    exit 1
}

fail_with_log()
{
    echo "printserver.sh: $1" >&2
    tail -n 20 "$dir/cupsd.out" "$dir/log/error_log" >&2 2>/dev/null || true
    exit 1
}

write_configuration()
{
    local user group
    user=$(id -un) || fail "the scheduler needs an entry in /etc/passwd for uid $(id -u)"
    group=$(id -gn) || fail "the scheduler needs an entry in /etc/group for gid $(id -g)"
    mkdir -p "$dir/conf" "$dir/state" "$dir/cache" "$dir/spool" "$dir/tmp" "$dir/log"

    # Only the sandbox's folder: outside, a caller who may write it would write the machine's.
    if [ -n "${PRESSDESK_SANDBOX:-}" ] && [ -w /etc/cups/ppd ]; then
        ln -sfn /etc/cups/ppd "$dir/conf/ppd"
    else
        mkdir -p "$dir/conf/ppd"
    fi

    cat >"$dir/conf/cupsd.conf" <<CONF
Listen $dir/cups.sock
LogLevel warn
PageLogFormat
DefaultAuthType None
WebInterface No
Browsing Off
DefaultShared No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
CONF
    cat >"$dir/conf/cups-files.conf" <<CONF
ServerRoot $dir/conf
StateDir $dir/state
CacheDir $dir/cache
RequestRoot $dir/spool
TempDir $dir/tmp
AccessLog $dir/log/access_log
ErrorLog $dir/log/error_log
PageLog $dir/log/page_log
ServerBin /usr/lib/cups
DataDir /usr/share/cups
FileDevice Yes
SyncOnClose No
User $user
Group $group
SystemGroup $group
CONF
}

running()
{
    [ -s "$dir/cupsd.pid" ] && kill -0 "$(cat "$dir/cupsd.pid")" 2>/dev/null
}

answers()
{
    [ -S "$dir/cups.sock" ] && LC_ALL=C lpstat -r 2>/dev/null | grep -q '^scheduler is running'
}

start()
{
    [ "$(id -u)" -ne 0 ] ||
        fail "root would start it for the whole machine: run this in tests/support/sandbox.sh"
    command -v cupsd >/dev/null || fail "cupsd (package cups-daemon) is missing"
    command -v lpadmin >/dev/null || fail "lpadmin (package cups-client) is missing"
    if running; then
        fail "a print server is running in $dir already"
    fi

    write_configuration
    rm -f "$dir/cups.sock"
    # With nothing inherited from the caller, so that $(printserver.sh start DIR) ends.
    setsid cupsd -f -c "$dir/conf/cupsd.conf" -s "$dir/conf/cups-files.conf" \
        </dev/null >"$dir/cupsd.out" 2>&1 &
    echo $! >"$dir/cupsd.pid"

    local tries=0
    until answers; do
        tries=$((tries + 1))
        running || fail_with_log "cupsd ended at once"
        [ $tries -lt 500 ] || fail_with_log "cupsd does not answer"
        sleep 0.02
    done
    printf 'export CUPS_SERVER=%q CUPS_SERVERROOT=%q\n' "$CUPS_SERVER" "$CUPS_SERVERROOT"
}

add()
{
    local name=$1 ppd=$2 uri=${3:-file:///dev/null} message
    [ -r "$ppd" ] || fail "cannot read $ppd"
    # lpadmin warns about every PPD that its days are counted: of interest only on failure.
    message=$(lpadmin -p "$name" -E -v "$uri" -P "$ppd" 2>&1) ||
        fail_with_log "queue $name: $message"
}

# At once, which takes lpadmin a minute for a thousand.
lay_many()
{
    local count=$1 ppd=$2 name=${3:-Queue} i
    [ -r "$ppd" ] || fail "cannot read $ppd"
    ! running || fail "the print server in $dir is running, and would not see them"
    write_configuration
    for ((i = 1; i <= count; ++i)); do
        cp "$ppd" "$dir/conf/ppd/$name$i.ppd"
        printf '<Printer %s>\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n' "$name$i"
        # Long ago, as on a print server that stands.
        printf 'ConfigTime 1700000000\n</Printer>\n'
    done >>"$dir/conf/printers.conf"
}

fit()
{
    local name=$1 message
    shift
    message=$(lpadmin -p "$name" "${@/#/-o}" 2>&1) || fail_with_log "queue $name: $message"
}

remove()
{
    local message
    message=$(lpadmin -x "$1" 2>&1) || fail_with_log "queue $1: $message"
}

add_sample_queues()
{
    local i
    for ((i = 0; i < ${#sample_queues[@]}; i += 2)); do
        add "${sample_queues[i]}" "$demo/ppd/${sample_queues[i + 1]}"
    done
}

stop()
{
    local tries=0
    running || return 0
    kill "$(cat "$dir/cupsd.pid")"
    while running; do
        tries=$((tries + 1))
        [ $tries -lt 500 ] || fail_with_log "cupsd does not stop"
        sleep 0.02
    done
    rm -f "$dir/cupsd.pid"
}

run_with_server()
{
    start >/dev/null
    trap stop EXIT
    "$@"
}

run_with_queues()
{
    add_sample_queues
    fit Office_C3 "${office_hardware[@]}"
    "$@"
}

usage()
{
    sed -n '4,12s/^# *//p' "${BASH_SOURCE[0]}" >&2
    exit 2
}

[ $# -ge 2 ] || usage
command=$1
mkdir -p "$2"
dir=$(cd "$2" && pwd -P)
shift 2

# The socket's address has room for 108 bytes, and libcups tells of no cut.
export CUPS_SERVER=$dir/cups.sock CUPS_SERVERROOT=$dir/conf
[ "$(printf %s "$CUPS_SERVER" | wc -c)" -lt 100 ] || fail "the path is too long: $CUPS_SERVER"

case $command:$# in
    start:0) start ;;
    queues:0) add_sample_queues ;;
    add:2 | add:3) add "$@" ;;
    remove:1) remove "$1" ;;
    many:2 | many:3) lay_many "$@" ;;
    stop:0) stop ;;
    serve:0 | with:0) usage ;;
    serve:*) run_with_server "$@" ;;
    with:*) run_with_server run_with_queues "$@" ;;
    *) usage ;;
esac
