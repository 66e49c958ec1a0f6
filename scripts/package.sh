#!/usr/bin/env bash
# Builds the Debian package of Trumpona: an optimised build, then CPack. The .deb
# lands in build/paket/ and is named on the last line.
#   scripts/package.sh            build the package
#   sudo apt-get install ./build/paket/trumpona_*.deb
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build/paket -G Ninja -DCMAKE_BUILD_TYPE=Release -DTRUMPONA_TESTS=OFF
cmake --build build/paket --parallel 2
(cd build/paket && cpack -G DEB)
ls -1 "$PWD"/build/paket/trumpona_*.deb | tail -n 1
