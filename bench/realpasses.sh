#!/bin/sh
# Both passes under Wine on the real registry, against a bare loop of the same calls of advapi32.
# Call: realpasses.sh
set -eu
cd "$(dirname "$0")/.."

cmake --preset xp -DQUILLMORE_BENCH=ON >/dev/null
cmake --build --preset xp --target realpasses

# Z: is the build folder there.
cp resources/xp-baseline.reg build/xp/bench/
tools/wine build/xp/bench/realpasses.exe 'Z:\bench\xp-baseline.reg'
