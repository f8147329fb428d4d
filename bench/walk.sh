#!/bin/sh
# The walk of the clean-up under Wine, against bare loops over the same tree. Call: walk.sh
set -eu
cd "$(dirname "$0")/.."

cmake --preset xp -DQUILLMORE_BENCH=ON >/dev/null
cmake --build --preset xp --target walk

tools/wine build/xp/bench/walk.exe
