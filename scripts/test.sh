#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test: the whole
# program with all tests, then the pure libraries under the sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

cmake --preset default
cmake --build --preset default
ctest --preset default

cmake --preset asan
cmake --build --preset asan
ctest --preset asan
