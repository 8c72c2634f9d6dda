#!/usr/bin/env bash
# Installs the packages in a system of their own with only what apt resolves, and uses them there as a leader does:
# double click, save, print, upgrade, remove. Needs root, the network and some minutes.
# Usage: paket_test.sh <folder with the packages>
set -eu
[ "$(id -u)" -eq 0 ] || { echo "a system of its own takes root" >&2; exit 1; }
# Mounts and processes of its own, which go with this script whatever ends it.
[ -n "${PAKET_ALLEIN:-}" ] ||
  PAKET_ALLEIN=1 exec unshare --mount --pid --fork --kill-child --mount-proc -- "$0" "$@"
pakete=$(cd "$1" && pwd)
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
ablage=${XDG_CACHE_HOME:-$HOME/.cache}/feldkranz
grundlage=$ablage/bookworm-$(dpkg --print-architecture).tar.zst
mkdir -p "$ablage/apt/partial"

ordner=$(mktemp -d "${TMPDIR:-/var/tmp}/paket.XXXXXX")
wurzel=$ordner/wurzel
aufraeumen() {
  trap - EXIT
  for stelle in var/cache/apt/archives dev/shm dev proc; do umount -l "$wurzel/$stelle" 2>/dev/null || true; done
  grep -q " $wurzel" /proc/self/mounts || rm -rf "$ordner" # never through a mount
}
trap aufraeumen EXIT
klage() { echo "$*" >&2; exit 1; }
schritt() { printf '== %s (%d s)\n' "$*" "$SECONDS"; }

drin() { # command: in there, as root
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive HOME=/root \
    /usr/sbin/chroot "$wurzel" "$@"
}
apt() { # what apt-get is to do, with no more packages than are needed
  drin apt-get -q -y --no-install-recommends "$@" >>"$ordner/apt.log" 2>&1 ||
    { tail -n 20 "$ordner/apt.log" >&2; klage "apt-get $* ended with an error"; }
}
leiterin() { # function and arguments of sitzung.sh: in there, as an ordinary user
  env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME=/home/leiterin USER=leiterin LOGNAME=leiterin \
    XDG_RUNTIME_DIR=/run/user/1000 XDG_CURRENT_DESKTOP=GNOME DISPLAY=:77 \
    /usr/sbin/chroot --userspec=leiterin:leiterin --groups=leiterin "$wurzel" /bin/bash /paket/sitzung.sh "$@"
}
heim() { printf '%s/home/leiterin/.local/share/Feldkranz/%s' "$wurzel" "$1"; }
gleich() { # file in the person's folder, text
  [ "$(cat "$(heim "$1")")" = "$2" ] || klage "$1 holds something else"
}

if [ ! -e "$grundlage" ]; then
  schritt "A bare system, kept for the next time"
  debootstrap --variant=minbase bookworm "$wurzel" http://deb.debian.org/debian >"$ordner/debootstrap.log" ||
    { tail -n 20 "$ordner/debootstrap.log" >&2; exit 1; }
  rm -f "$wurzel"/var/cache/apt/archives/*.deb
  tar -C "$wurzel" -c . | zstd -q -T0 -o "$grundlage.neu" && mv "$grundlage.neu" "$grundlage"
else
  mkdir "$wurzel"
  zstd -q -d -c "$grundlage" | tar -C "$wurzel" -x
fi
mount -t proc proc "$wurzel/proc"
mount --bind /dev "$wurzel/dev"
mount -t tmpfs -o mode=1777 tmpfs "$wurzel/dev/shm"
mount --bind "$ablage/apt" "$wurzel/var/cache/apt/archives"
cp -L /etc/resolv.conf "$wurzel/etc/resolv.conf"
printf '#!/bin/sh\nexit 101\n' >"$wurzel/usr/sbin/policy-rc.d" # no service starts by itself
chmod +x "$wurzel/usr/sbin/policy-rc.d"
mkdir "$wurzel/paket"
cp "$pakete"/feldkranz*.deb "$hier/sitzung.sh" "$wurzel/paket"

schritt "The version before: one catalogue file is missing in it, two are others"
neu=$(basename "$pakete"/feldkranz_*.deb)
unveraendert=WISSEN/SPORT/W_SPORT.TXT geaendert='' fehlend=''
{ read -r unveraendert; read -r geaendert; read -r fehlend; } < <(
  dpkg-deb -c "$pakete/$neu" | sed -n 's|.*\./usr/share/feldkranz/\(WISSEN/TIERE/[^ ]*\.TXT\)$|\1|p' | sort)
[ -n "$fehlend" ] || klage "too few catalogue files"
dpkg-deb -R "$pakete/$neu" "$ordner/alt"
sed -i 's/^Version: .*/Version: 7.9.9/' "$ordner/alt/DEBIAN/control"
for datei in "$unveraendert" "$geaendert"; do
  printf 'alt\r\n' >"$ordner/alt/usr/share/feldkranz/$datei"
  summe=$(sha256sum <"$ordner/alt/usr/share/feldkranz/$datei" | cut -d' ' -f1)
  sed -i "s|^[0-9a-f]* $datei\$|$summe $datei|" "$ordner/alt/usr/share/feldkranz/LIEFERUNG"
done
rm "$ordner/alt/usr/share/feldkranz/$fehlend"
sed -i "\\| $fehlend\$|d" "$ordner/alt/usr/share/feldkranz/LIEFERUNG"
rm "$ordner/alt/DEBIAN/md5sums"
dpkg-deb --root-owner-group -b "$ordner/alt" "$wurzel/paket/alt.deb" >/dev/null

schritt "What the desktop is told"
einblick=$ordner/neu
dpkg-deb -x "$pakete/$neu" "$einblick"
desktop-file-validate "$einblick/usr/share/applications/feldkranz.desktop"
befund=$(appstreamcli validate --no-net "$einblick"/usr/share/metainfo/*.xml) || klage "$befund"
! grep -E '^ *[EWIP]:|infos|warnings' <<<"$befund" >&2 || klage "the AppStream data have hints"
for groesse in 16 22 24 32 48 64 128 256; do
  [ -e "$einblick/usr/share/icons/hicolor/${groesse}x$groesse/apps/feldkranz.png" ] || klage "no icon of $groesse"
done

schritt "apt installs it, and nothing but what it needs"
apt update
apt install /paket/alt.deb
drin dpkg-query -W -f '${Package} ${Installed-Size}\n' | awk '
  /webengine/ { print "a browser came along: " $1 > "/dev/stderr"; fehler = 1 }
  { summe += $2 } END { printf "   %d MB in all\n", summe / 1024; exit fehler }'
[[ $neu == "$(drin feldkranz --version | tr ' ' _)"_* ]] || klage "the program says it is $(drin feldkranz --version)"

schritt "A desktop: screen, window manager, file manager's opener, printer"
apt install xvfb openbox xdotool xdg-utils libglib2.0-bin shared-mime-info desktop-file-utils cups cups-client \
  printer-driver-cups-pdf procps
drin useradd -m -u 1000 leiterin
drin install -d -o leiterin -m 700 /run/user/1000 /home/leiterin/Formulare
drin install -d -o leiterin "/home/leiterin/Formulare/Übungen im Schnee"
drin install -d -m 1777 /tmp/.X11-unix
drin cupsd
drin lpadmin -p Blatt -E -v cups-pdf:/ -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd 2>/dev/null
drin lpadmin -d Blatt
leiterin bildschirm

schritt "A double click on a form: it opens behind the start window, is saved and printed"
formular='/home/leiterin/Formulare/Übungen im Schnee/Abend 1.fkr'
drin install -o leiterin -m 644 /usr/share/feldkranz/KRANZ/Kurzabend.FKR "$formular"
leiterin art "$formular"
leiterin oeffnen "$formular"
leiterin speichern "$formular"
leiterin drucken
leiterin beenden
gleich "$unveraendert" "$(printf 'alt\r\n')"
[ ! -e "$(heim "$fehlend")" ] || klage "$fehlend is there already"

schritt "The new version comes over a changed and an unchanged catalogue file"
printf 'meins\r\n' >"$(heim "$geaendert")"
cp "$wurzel$formular" "$(heim KRANZ/Meiner.FKR)"
apt install "/paket/$neu"
leiterin starten
leiterin beenden
for datei in "$unveraendert" "$fehlend"; do
  cmp "$(heim "$datei")" "$wurzel/usr/share/feldkranz/$datei"
done
gleich "$geaendert" "$(printf 'meins\r\n')"
cmp "$(heim "$geaendert.NEU")" "$wurzel/usr/share/feldkranz/$geaendert"

schritt "The rules' window, too: a package of its own"
apt install "/paket/${neu/feldkranz_/feldkranz-regel_}"
drin sh -c '! ldd /usr/lib/*/feldkranz/*feldkranz_pdf.so | grep "not found"'

schritt "Removed and purged: what is the person's stays"
for weise in remove purge; do
  apt install "/paket/$neu" "/paket/${neu/feldkranz_/feldkranz-regel_}"
  apt "$weise" feldkranz feldkranz-regel
  rest=$(find "$wurzel/usr" "$wurzel/etc" -iname '*feldkranz*')
  [ -z "$rest" ] || klage "what stays: $rest"
  for datei in "$(heim KRANZ/Meiner.FKR)" "$(heim KRANZ/Kurzabend.FKR)" "$(heim "$geaendert")" "$wurzel$formular"; do
    [ -s "$datei" ] || klage "$datei has gone"
  done
done
schritt "All right"
