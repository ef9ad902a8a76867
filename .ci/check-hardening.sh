#!/usr/bin/env bash
# Looks whether the built program is position-independent, resolves its symbols before it runs, and
# has guarded stacks and fortified calls.
#
#   check-hardening.sh [PROGRAM]     default build/release/src/brixola-press-desk
set -eu

program=${1:-$(dirname "${BASH_SOURCE[0]}")/../build/release/src/brixola-press-desk}
status=0

# Says what is missing unless the line is there.
expect()
{
    readelf --wide "$2" "$program" | grep -qE "$3" || {
        echo "$program: no $1"
        status=1
    }
}

expect "position-independent executable" -h 'Type:.*DYN'
expect "read-only relocations" -l 'GNU_RELRO'
expect "immediate binding" -d 'BIND_NOW|FLAGS.*NOW'
expect "stack protector" -s '__stack_chk_fail'
expect "fortified calls" -s '__[a-z]+_chk(@|$)'
exit $status
