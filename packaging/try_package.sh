#!/usr/bin/env bash
# Tries a package on a clean system: try_package.sh PACKAGE.deb [ROOT]. ROOT is a folder with a Debian base system;
# without it, or when it is empty, one is made in a temporary folder, which goes away again.
set -euo pipefail
package=$(realpath "$1")
root=${2:-}
[ "$(id -u)" = 0 ] || { echo "This wants root."; exit 1; }
if [ -z "$root" ]; then
  root=$(mktemp -d)
  trap 'rm -rf "$root"' EXIT
fi
if [ ! -e "$root/etc/debian_version" ]; then
  . /etc/os-release
  mirror=$(grep -rhoE 'https?://[^ ]+/debian/?( |$)' /etc/apt/sources.list /etc/apt/sources.list.d 2>/dev/null | head -n 1)
  debootstrap --variant=minbase "$VERSION_CODENAME" "$root" ${mirror:+"$mirror"} >/dev/null
fi

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { inside su - prova -c "$1"; }
step() { echo "- $*"; }

cp "$package" "$root/tmp/trelvo.deb"
[ -e /etc/resolv.conf ] && cp /etc/resolv.conf "$root/etc/resolv.conf"
inside apt-get update -qq
inside apt-get install -y -qq --reinstall --no-install-recommends /tmp/trelvo.deb desktop-file-utils shared-mime-info libglib2.0-bin >/dev/null 2>&1
step "installed: $(inside dpkg-query -W -f '${Package} ${Version} ${Status}' trelvo)"

inside id prova >/dev/null 2>&1 || inside useradd -m prova
as_user 'trelvo --version && trelvo --help' | head -n 2
cat >"$root/home/prova/prova.tsc" <<'END'
menu gestfile 1
menu opdis 1
left 1 2
left 11 7
right 0 0
objects
file "/home/prova/così è.DIS"
menu opfile 4
END
as_user 'trelvo --script prova.tsc' | grep -q '^Linea 1 .*Xf=11' || { echo "no line was drawn"; exit 1; }
as_user 'test -s "così è.DIS" && test -s .config/trelvo/Trelvo.ini'
step "a user drew and saved; the settings are in his own folder"
inside test ! -e /usr/bin/Trelvo.ini
inside trelvo --script /home/prova/prova.tsc >/dev/null
inside test ! -e /usr/bin/Trelvo.ini
step "root's settings are not beside the program either"
grep -q 'application/x-trelvo-disegno=trelvo.desktop' "$root/usr/share/applications/mimeinfo.cache"
for name in 'così è.DIS' 'minuscolo.dis' 'senza nome'; do
  [ -e "$root/home/prova/$name" ] || as_user "cp 'così è.DIS' '$name'"
  as_user "gio info -a standard::content-type '$name'" | grep -q application/x-trelvo-disegno || { echo "$name is not known"; exit 1; }
done
step "the desktop opens .DIS files with it"

inside apt-get purge -y -qq trelvo >/dev/null 2>&1
left=$(cd "$root" && find usr etc var/lib/dpkg/info -iname '*trelvo*' | head)
[ -z "$left" ] || { echo "left behind: $left"; exit 1; }
as_user 'test -s "così è.DIS"'
step "removed: nothing left but the user's own files"
