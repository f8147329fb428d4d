#!/bin/sh
# The real program under Wine: size, start to idle against a bare program with as many windows, and
# private memory. Call: startup.sh
set -eu
cd "$(dirname "$0")/.."
. bench/limits.txt

cmake --preset xp -DQUILLMORE_BENCH=ON >/dev/null
cmake --build --preset xp --target Quillmore startup barewindow
failed=0

size=$(stat -c %s build/xp/Quillmore.exe)
awk -v size="$size" -v limit="$executable" 'BEGIN {
    printf "executable    stripped ours %d bytes limit %d ratio %.2f %s\n", size, limit, size / limit,
           size <= limit ? "ok" : "TOO LARGE"
    exit size <= limit ? 0 : 1
}' || failed=1

# Z: is the build folder there.
tools/wine build/xp/bench/startup.exe 'Z:\Quillmore.exe' 'Z:\bench\barewindow.exe' || failed=1
exit $failed
