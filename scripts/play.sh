#!/usr/bin/env bash
# Installs what is missing, builds the game and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target trumpona
exec build/default/src/app/trumpona "$@"
