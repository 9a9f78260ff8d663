#!/bin/sh
# Installs what is missing of the package groups named on the command line. Says what it installs, and nothing where all
# is there. Without the right to install it says what to type.
#
# Usage: install-dependencies.sh GROUP...
set -eu

list="$(dirname "$0")/dependencies.txt"

if ! command -v dpkg-query >/dev/null; then
  echo "This is not a Debian system: nothing is installed. Needed are the packages of $list." >&2
  exit 0
fi

packages_of() {
  awk -v group="[$1]" '
    { sub(/#.*/, ""); gsub(/[ \t]/, "") }
    /^\[/ { wanted = ($0 == group); known = known || wanted; next }
    wanted && $0 != "" { print }
    END { if (!known) exit 1 }' "$list" || {
    echo "dependencies.txt has no group $1" >&2
    exit 2
  }
}

wanted=$(for group in "$@"; do packages_of "$group"; done | sort -u)
# A package counts as installed as well where another one provides it.
installed=$(dpkg-query -W -f='${db:Status-Status}\t${Package}, ${Provides}\n' | awk -F '\t' '
  $1 == "installed" { n = split($2, names, /, */); for (i = 1; i <= n; ++i) { sub(/ .*/, "", names[i]); print names[i] } }')
missing=$(for package in $wanted; do
  echo "$installed" | grep -qx -F -- "$package" || echo "$package"
done)
[ -n "$missing" ] || exit 0

# shellcheck disable=SC2086 # the list is split into words on purpose
set -- $missing
if [ "$(id -u)" -ne 0 ]; then
  echo "These packages are missing: $*" >&2
  echo "Please install them and try again:" >&2
  echo "  sudo apt-get update && sudo apt-get install --no-install-recommends $*" >&2
  exit 1
fi

echo "Installing what is missing: $*"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "$@"
