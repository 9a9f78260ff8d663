#!/bin/sh
# The source archive holds what the tree holds, and builds where there is neither git nor a repository.
#
# Usage: dist_test.sh SOURCE_FOLDER
set -eu
export LC_ALL=C.UTF-8

source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "$1" >&2
  exit 1
}

archive=$("$source/packaging/dist.sh" "$work/dist")
tar -xJf "$archive" -C "$work"
tree=$work/$(basename "$archive" .tar.xz)
[ -f "$tree/LICENSE" ] || fail "The archive has no licence."
for other in .git build out; do
  [ ! -e "$tree/$other" ] || fail "The archive has $other, which is no source."
done

# git answers as if it were not installed.
mkdir "$work/bin"
printf '#!/bin/sh\necho "git was asked: $*" >&2\nexit 127\n' >"$work/bin/git"
chmod +x "$work/bin/git"
PATH=$work/bin:$PATH
export PATH

# The archive of the archive has the same files.
again=$("$tree/packaging/dist.sh" "$work/again")
tar -tJf "$archive" | sort >"$work/first"
tar -tJf "$again" | sort >"$work/second"
cmp "$work/first" "$work/second"

cd "$tree"
quiet() {
  "$@" >"$work/log" 2>&1 || {
    cat "$work/log" >&2
    fail "In the unpacked archive: $*"
  }
}
quiet cmake --preset dev
quiet cmake --build --preset dev --target cserko_platform
find build/dev -name libcserko_platform.a | grep -q . || fail "Nothing was built."
echo "The archive builds: $(wc -l <"$work/first") files, $(stat -c %s "$archive") bytes."
