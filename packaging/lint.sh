#!/bin/sh
# Looks at the style of the sources: `lint.sh format` at their layout, `lint.sh tidy` at what clang-tidy finds as well.
# Without further arguments at all sources, otherwise at the files named.
set -eu

cd "$(dirname "$0")/.."
what=$1
shift

sources() {
  git ls-files -- "$@" 2>/dev/null || find app bench core data exercises feedback fuzz platform tests tools viewer \
    -name '*.cpp' -o -name '*.h' 2>/dev/null
}

if [ $# -eq 0 ]; then
  # Names are quoted by git unless it is told that they are UTF-8.
  export GIT_CONFIG_COUNT=1 GIT_CONFIG_KEY_0=core.quotePath GIT_CONFIG_VALUE_0=false
  IFS='
'
  # shellcheck disable=SC2046 # one word a line
  set -- $(sources '*.cpp' '*.h')
fi

clang-format --dry-run -Werror "$@"
echo "Layout: $# files, nothing to mend."
[ "$what" = tidy ] || exit 0

# What the release build compiles; a header is looked at with the sources that include it.
for file; do
  case $file in *.cpp) grep -q -F "$file\"" build/release/compile_commands.json && printf '%s\0' "$file" ;; esac
done | xargs -0 -r -n 1 -P "$(nproc)" clang-tidy --quiet -p build/release --extra-arg=-Wno-unknown-warning-option
echo "clang-tidy: nothing to mend."
