#!/usr/bin/env bash
# Installs the Debian packages listed in debian-packages.txt that are missing,
# or, given package names, those of them that are missing (for tools that only
# a script needs, such as clang for fuzzing or xvfb for the start soak).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ $# -gt 0 ]; then
  wanted=("$@")
else
  mapfile -t wanted < <(grep -vE '^\s*(#|$)' "$here/debian-packages.txt")
fi

missing=()
for p in "${wanted[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Please run as root or install sudo." >&2; exit 1; }
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
