#!/usr/bin/env bash
# The package in a fresh root (tools/freshroot tests/package/fresh.sh): it installs with what it says it
# needs, is played from the menu's entry by a player without rights, keeps that player's files in the
# player's folder, and leaves nothing of its own behind.
set -euo pipefail
package=$(echo /root/package/*.deb)
[ -f "$package" ] || { echo "no package: cpack --config build/release/CPackConfig.cmake -B build/release/package" >&2; exit 1; }
export DEBIAN_FRONTEND=noninteractive
install() { apt-get install -qq -y --no-install-recommends "$@" >/dev/null; }
things() { find /usr /etc /opt /var -xdev ! -type d | grep -vE '^/var/lib/(dpkg|apt)/|^/var/(log|cache)/|/__pycache__/' | sort; }

apt-get update -qq
install lintian desktop-file-utils appstream xvfb xauth xdotool procps libglib2.0-bin man-db openbox
lintian --fail-on error "$package"
install timgm6mb-soundfont $(dpkg-deb -f "$package" Depends | tr ',' '\n' | sed 's/(.*//')
useradd -m player
things >/tmp/before
dpkg -i "$package" >/dev/null # all that it needs is what it names
things >/tmp/with

desktop-file-validate /usr/share/applications/hoardhustle.desktop
appstreamcli validate --strict --no-net /usr/share/metainfo/org.hoardhustle.HoardHustle.metainfo.xml
for page in 6/hoardhustle 6/hustlescript 1/hustlelab; do
    man --warnings -E UTF-8 -l "/usr/share/man/man${page%/*}/${page#*/}.${page%/*}.gz" 2>&1 >/tmp/page |
        grep . && { echo "the page of $page has faults" >&2; exit 1; }
    grep -qi hoard /tmp/page
done

cat >/tmp/play.sh <<'PLAY'
set -euo pipefail
export HOME=/home/player
cd
wait_for() { for _ in $(seq 300); do "$@" && return; sleep 0.1; done; echo "waited in vain: $*" >&2
    xdotool search --name . getwindowname %@ >&2; exit 1; }
gone() { ! pgrep -x hoardhustle >/dev/null; }
session=.local/share/hoardhustle/session.txt
printf 'run 210\npress main.start\nexpect credits 19\n' | hustlescript
hustlelab run --policy starter --machines 1 --plays 100 2>/dev/null | grep -q starter

openbox &
gio launch /usr/share/applications/hoardhustle.desktop 2>/dev/null & # by the entry, as the menu does it
wait_for test -s .local/share/hoardhustle/hoardhustle.lock
answered() { # the question about flashing; some seconds of play are recorded behind it
    [ -e "$session" ] && [ "$(grep -c '^hash' "$session")" -ge 3 ] && return
    xdotool search --name 'Before you play' windowactivate --sync 2>/dev/null && xdotool key Return
    false
}
wait_for answered
xdotool key space # a play
wait_for grep -q '^key 32 main' "$session"
sleep 2
pkill -TERM -x hoardhustle
wait_for gone
head -n1 .local/share/hoardhustle/game.dat | grep -q 100.25 || { echo "the play is not in the ledgers" >&2; exit 1; }
find . -type f -newer /tmp/with | sort
PLAY
su player -c 'xvfb-run -a bash /tmp/play.sh' | tee /tmp/told
[ -z "$(find / -xdev -user player ! -path '/home/*' ! -path '/tmp/*' ! -path '/proc/*' ! -path '/dev/*')" ]

apt-get remove -qq -y hoardhustle >/dev/null
things >/tmp/after
# What the installing of the package brought, and what is left of it now.
comm -13 /tmp/before /tmp/after | tee /tmp/left
[ ! -s /tmp/left ] || { echo "the package left these behind" >&2; exit 1; }
[ -f /home/player/.local/share/hoardhustle/game.dat ] || { echo "the player's file went with the package" >&2; exit 1; }
echo "package: installed $(comm -13 /tmp/before /tmp/with | wc -l) files, played, removed"
