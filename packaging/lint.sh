#!/bin/sh
# Looks at the style of the sources: `lint.sh format` at their layout, `lint.sh tidy` at what clang-tidy finds as well.
# `lint.sh quick` is `tidy` without the paths that lead through the standard library, in half the time.
# Without further arguments at all sources, also those that git has not been told of, otherwise at the files named; `quick`
# looks at the rules of the suite, which know no toolkit: few enough for every test run.
set -eu

cd "$(dirname "$0")/.."
what=$1
shift

sources() {
  git ls-files --cached --others --exclude-standard --deduplicate -- "$@" 2>/dev/null ||
    find app bench cmake core data exercises feedback fuzz platform tests tools viewer -name '*.cpp' -o -name '*.h'
}

if [ $# -eq 0 ] && [ "$what" = quick ]; then
  set -- core/*.cpp feedback/*.cpp exercises/*/*.cpp platform/*.cpp platform/headless/*.cpp
elif [ $# -eq 0 ]; then
  # Names are quoted by git unless it is told that they are UTF-8.
  export GIT_CONFIG_COUNT=1 GIT_CONFIG_KEY_0=core.quotePath GIT_CONFIG_VALUE_0=false
  IFS='
'
  # shellcheck disable=SC2046 # one word a line
  set -- $(sources '*.cpp' '*.h' | while read -r file; do [ ! -f "$file" ] || echo "$file"; done)
fi

clang-format --dry-run -Werror "$@"
echo "Layout: $# files, nothing to mend."
case $what in
tidy) paths= ;;
quick) paths='--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=c++-stdlib-inlining=false' ;;
*) exit 0 ;;
esac

# What the release build compiles; a header is looked at with the sources that include it. The precompiled headers are
# those of another compiler: each source is read with the headers that it names itself.
mkdir -p build/tidy
sed 's/ -Winvalid-pch -include [^ ]*//g' build/release/compile_commands.json >build/tidy/compile_commands.json
# Of its own accord clang-tidy also counts what it does not show.
quiet_tidy='out=$(clang-tidy --quiet -p build/tidy --extra-arg=-Wno-unknown-warning-option '$paths' "$1" 2>&1) && exit
printf "%s\n" "$out" | grep -v -E "^[0-9]+ warnings? generated\.$"
exit 1'
for file; do
  case $file in *.cpp) grep -q -F "$file\"" build/tidy/compile_commands.json && printf '%s\0' "$file" ;; esac
done | xargs -0 -r -n 1 -P "$(nproc)" sh -c "$quiet_tidy" tidy
echo "clang-tidy: nothing to mend."
