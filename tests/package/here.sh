#!/usr/bin/env bash
# The package that the build makes, laid into a folder by the package manager itself: its texts pass their
# checkers, the same build packs the same bytes again, the programs find their data where it lies, and
# its removal leaves nothing.   here.sh BUILD   (fresh.sh does the same with what it depends on, and a display)
set -euo pipefail
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "package: $*" >&2; exit 1; }

for time in first second; do
    cpack --config "$build/CPackConfig.cmake" -B "$work/$time" >"$work/log" || { cat "$work/log"; exit 1; }
done
package=$(echo "$work"/first/*.deb)
cmp "$package" "$work"/second/*.deb
lintian --fail-on error,warning "$package"

root=$work/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root"/var/lib/dpkg/status
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(fakeroot)
manage() { "${as_root[@]}" dpkg --root="$root" --force-depends --log="$work/dpkg.log" "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }; }
things() { find "$root" ! -path "$root/var/*" ! -type d; }
manage -i "$package"

share=$root/usr/share
desktop-file-validate "$share/applications/hoardhustle.desktop"
appstreamcli validate --strict --no-net "$share/metainfo/org.hoardhustle.HoardHustle.metainfo.xml"
bin=$root/usr/bin
printf 'run 210\npress main.start\nexpect credits 19\n' | "$bin/hustlescript"
"$bin/hustlelab" run --policy starter --machines 1 --plays 100 2>/dev/null | grep -q starter

# Played from where it lies, by a player with a home of their own, and left as a session's end leaves it.
export HOME=$work/home XDG_RUNTIME_DIR=$work/home QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy
unset XDG_DATA_HOME XDG_CONFIG_HOME
mkdir -m 700 "$HOME"
"$bin/hoardhustle" --reduced-flashing >"$work/log" 2>&1 &
player=$!
session=$HOME/.local/share/hoardhustle/session.txt
for _ in $(seq 300); do
    [ -e "$session" ] && grep -q '^hash' "$session" && break
    sleep 0.1
done
grep -q hustlemixer.so "/proc/$player/maps" || fail "the sound module is not found where it lies"
kill -TERM $player
wait $player || fail "the window did not leave in order"
[ -s "$HOME/.local/share/hoardhustle/game.dat" ] || fail "the player's files are not in the player's folder"
[ ! -s "$work/log" ] || { cat "$work/log"; fail "the window complained"; }

manage -r hoardhustle
[ -z "$(things)" ] || { things; fail "these were left behind"; }
[ -s "$HOME/.local/share/hoardhustle/game.dat" ] || fail "the player's file went with the package"
