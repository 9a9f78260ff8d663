#!/bin/sh
# Builds the libraries of the Windows program from the sources of their Debian packages: Qt, SDL with its mixer,
# and GoogleTest. What is there already, of the same version and built in the same way, is not built again.
# They are installed in the folder prefix of the cache, their licences in licenses.
#
# Usage: libraries.sh
set -eu

here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
mkdir -p "$cache/stamps" "$cache/licenses" "$cache/logs" "$cache/downloads"
cache=$(cd "$cache" && pwd)
prefix=$cache/prefix

# The version of the sources that an installed package was built from. Qt's own tools run on this machine, so the Qt that
# is built must be the one that is installed, and the others may as well be.
source_version() { dpkg-query -W -f '${source:Version}' "$1"; }

# apt with lists of its own: the system's sources, turned into those of source packages. Nothing in /etc changes.
own_apt() {
  apt-get -qq -o "Dir::Etc::SourceList=$cache/apt/sources.list" -o "Dir::Etc::SourceParts=$cache/apt/parts" \
    -o "Dir::State::Lists=$cache/apt/lists" -o "Dir::Cache=$cache/apt/cache" -o APT::Sandbox::User=root "$@"
}

prepare_apt() {
  [ ! -e "$cache/apt/ready" ] || return 0
  rm -rf "$cache/apt"
  mkdir -p "$cache/apt/parts" "$cache/apt/lists/partial" "$cache/apt/cache/archives/partial"
  eval "$(apt-config shell main Dir::Etc::SourceList/f parts Dir::Etc::SourceParts/d)"
  : >"$cache/apt/sources.list"
  # shellcheck disable=SC2154 # apt-config sets both
  for list in "$main" "$parts"/*.list; do
    [ ! -f "$list" ] || sed -n 's/^deb[[:blank:]]/deb-src /p' "$list" >>"$cache/apt/sources.list"
  done
  for list in "$parts"/*.sources; do
    [ ! -f "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$cache/apt/parts/${list##*/}"
  done
  own_apt update
  : >"$cache/apt/ready"
}

# unpack SOURCE VERSION FOLDER: apt has compared the files with the archive's signed lists. Notes the version, so that an
# interrupted build goes on where it was.
unpack() {
  [ "$(cat "$3/.unpacked" 2>/dev/null)" != "$2" ] || return 0
  description=$cache/downloads/$1_${2#*:}.dsc
  if [ ! -f "$description" ]; then
    prepare_apt
    (cd "$cache/downloads" && own_apt source --download-only --only-source "$1=$2")
  fi
  rm -rf "$3" "$cache/build/$1"
  dpkg-source --no-check -x "$description" "$3" >"$cache/logs/$1-sources.log" 2>&1
  echo "$2" >"$3/.unpacked"
}

# install_library NAME SOURCE-FOLDER OPTION...: configures, builds and installs it.
install_library() {
  name=$1
  sources=$2
  shift 2
  log=$cache/logs/$name.log
  echo "Building $name for Windows; its log is $log."
  if ! {
    configure "$sources" "$cache/build/$name" -DCMAKE_INSTALL_PREFIX="$prefix" "$@" &&
      cmake --build "$cache/build/$name" -j"$(nproc)" &&
      cmake --install "$cache/build/$name"
  } >"$log" 2>&1; then
    grep -n -m 20 -i -E 'error|FAILED' "$log" >&2 || tail -n 20 "$log" >&2
    exit 1
  fi
}

# recipe NAME VERSION OPTION...: what a library was built from and how; a difference builds it anew.
recipe() { "$tools-g++-posix" -dumpfullversion && cat "$here/toolchain.cmake" && printf '%s\n' "$prefix" "$@"; }
is_built() { recipe "$@" | cmp -s - "$cache/stamps/$1"; }
note_built() {
  recipe "$@" >"$cache/stamps/$1"
  rm -rf "$cache/build/$1" "$cache/src/$1"
}

# debian_library PACKAGE SOURCE OPTION...: the library of an installed package.
debian_library() {
  version=$(source_version "$1")
  library=$2
  shift 2
  ! is_built "$library" "$version" "$@" || return 0
  mkdir -p "$cache/src"
  unpack "$library" "$version" "$cache/src/$library"
  install_library "$library" "$cache/src/$library" "$@"
  cp "$cache/src/$library/debian/copyright" "$cache/licenses/$library.txt"
  note_built "$library" "$version" "$@"
}

# Every library that Qt can bring itself is its own, so that none of this machine is found and none has to be built. The
# part that draws with Direct2D stays, since the fonts stand on it; Debian's sources lack what tablets need.
qt_off="pkg_config vulkan sql network dbus xml concurrent zstd icu glib system_libb2 system_zlib system_png system_jpeg
  system_freetype system_harfbuzz system_pcre2 system_doubleconversion tabletevent tuiotouch direct2d1_1 etw cpp_winrt"
# What neither the program nor the dialogs of Qt use, so that nobody waits for it or installs it.
qt_off="$qt_off graphicsview graphicseffect mdiarea wizard lcdnumber dial toolbox columnview datawidgetmapper
  undocommand commandlinkbutton errormessage splashscreen keysequenceedit fontcombobox syntaxhighlighter textodfwriter
  textmarkdownwriter style_windowsvista gif ico"
qt_features=$(for feature in $qt_off; do printf ' -DFEATURE_%s=OFF' "$feature"; done)

# shellcheck disable=SC2086 # a list of options
debian_library qt6-base-dev qt6-base $qt_features -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
  -DBUILD_SHARED_LIBS=ON -DINPUT_opengl=no -DFEATURE_freetype=ON -DFEATURE_harfbuzz=ON -DFEATURE_testlib=ON \
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF

# Of SDL only the sound is used.
debian_library libsdl2-dev libsdl2 -DSDL_SHARED=ON -DSDL_STATIC=OFF -DSDL_TEST=OFF \
  -DSDL_RENDER=OFF -DSDL_OPENGL=OFF -DSDL_OPENGLES=OFF -DSDL_VULKAN=OFF \
  -DSDL_JOYSTICK=OFF -DSDL_HAPTIC=OFF -DSDL_HIDAPI=OFF -DSDL_SENSOR=OFF
# Waves, recorded tunes by the decoder that lies in the mixer's own sources, and Windows' own instruments for the rest.
debian_library libsdl2-mixer-dev libsdl2-mixer -DBUILD_SHARED_LIBS=ON -DSDL2MIXER_SAMPLES=OFF -DSDL2MIXER_VENDORED=OFF \
  -DSDL2MIXER_DEPS_SHARED=OFF -DSDL2MIXER_CMD=OFF -DSDL2MIXER_FLAC=OFF -DSDL2MIXER_MOD=OFF -DSDL2MIXER_MP3=OFF \
  -DSDL2MIXER_OPUS=OFF -DSDL2MIXER_WAVE=ON -DSDL2MIXER_VORBIS=STB -DSDL2MIXER_MIDI=ON -DSDL2MIXER_MIDI_NATIVE=ON \
  -DSDL2MIXER_MIDI_FLUIDSYNTH=OFF -DSDL2MIXER_MIDI_TIMIDITY=OFF

# Its sources lie in a package of their own.
version=$(source_version googletest)
if ! is_built googletest "$version"; then
  install_library googletest /usr/src/googletest -DBUILD_GMOCK=ON
  note_built googletest "$version"
fi
cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$cache/licenses/gcc-runtime.txt"
