# For scripts that try something on a bare Debian, as root: sourced, with the script's arguments.
# Makes a root of its own for a suite, in namespaces of its own, and takes it away at the end.

if [ -z "${IN_NAMESPACE:-}" ]; then
    IN_NAMESPACE=1 exec unshare --mount --pid --fork "$0" "$@"
fi
mount --make-rprivate /
root=$(mktemp -d)
chmod 755 "$root"
trap 'umount -l "$root/proc" "$root/dev" 2>/dev/null; rm -rf --one-file-system "$root"' EXIT

say() { printf '== %s\n' "$1"; }

# Runs a shell script in the root. Not by chroot alone, in which the kernel lets nobody make the user
# namespaces that the sandbox of the tests takes.
inside()
{
    unshare --mount sh -euc '
        mount --rbind "$1" "$1"
        cd "$1"
        pivot_root . mnt
        exec chroot . /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive HOME=/root sh -euc "umount -l /mnt; $2"' \
        inside "$root" "$1"
}

expect() { inside "$1" || { echo "$(basename "$0"): not so: $1" >&2; exit 1; }; }

# bare_system SUITE: what debootstrap makes of the caller's mirror, with the updates of its lists
bare_system()
{
    say "a bare $1"
    debootstrap --variant=minbase "$1" "$root" >"$root.log" 2>&1 ||
        { tail "$root.log" >&2; exit 1; }
    rm "$root.log"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mount --make-rslave "$root/dev"
    inside 'apt-get update -q >/dev/null'
}

# Copies files and folders of the caller's to the same places in the root.
lend()
{
    local path
    for path in "$@"; do
        mkdir -p "$root$(dirname "$path")"
        cp -a "$path" "$root$path"
    done
}
