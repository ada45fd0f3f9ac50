#!/bin/sh
# Runs the command under whose name build/i386/bin links to this in the 32-bit Debian of i386.sh, in the same folder.
# It sees the checkout, and displays and servers in /tmp, at their places. Each call has mounts of its own, which
# end with it.
# shellcheck disable=SC2016
checkout=${0%/build/i386/bin/*}
exec unshare --mount sh -ec '
debian=$1/build/i386/debian
for folder in /dev /proc /tmp "$1"; do
    mkdir -p "$debian$folder"
    mount --bind "$folder" "$debian$folder"
done
shift
exec chroot "$debian" sh -ec "cd \"\$1\"; shift; PATH=/usr/sbin:/usr/bin:/sbin:/bin exec \"\$@\"" sh "$@"
' sh "$checkout" "$PWD" "${0##*/}" "$@"
