#!/bin/sh
# Proves what `make windows` has built, on a Windows that Wine plays: installed, started, played, its settings kept, each
# window looked at, its rules tested, uninstalled. Everything is shown on an X server of its own, and every touch is an
# event of that server.
#
# Usage: test.sh [STEP...]   without one: install play tour help logic uninstall
#
# The step `players` plays every exercise by mouse and by keyboard. It has to be asked for: not all of its runs pass yet.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=packaging/windows/common.sh
. "$here/common.sh"
[ $# -gt 0 ] || set -- install play tour help logic uninstall

tests="platform_test core_text_test suite_test rewards_test drawing_test exercises_test built_pack_test
  tour_checks_test media_command_test sdl_media_test metafile_tests qt_test drawing_qt_test"
# shellcheck disable=SC2086 # a list of targets
nice -n 5 cmake --build "$work/program" --target cserko-tour cserko-help-tour cserko-x11-play qt_started picture-render $tests

# The tests stand among the installed files, where the program itself finds its libraries, fonts and pack.
tested=$work/tested
rm -rf "$tested"
cp -al "$stage" "$tested"
for program in cserko-tour cserko-help-tour cserko-x11-play qt_started picture-render $tests; do
  cp "$work/program/$program.exe" "$tested/"
done
cp "$prefix/bin/Qt6Test.dll" "$tested/"
cp "$prefix/plugins/platforms/qoffscreen.dll" "$tested/platforms/"

export WINEPREFIX="$work/wine" WINEARCH=win64 WINEDEBUG=-all
# No page of the net, no browser and no entry in the menu of this machine.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
exec "$root/tests/x11/with-display.sh" 1280x1024 "$here/test-on-display.sh" "$tested" "$tests" "$@"
