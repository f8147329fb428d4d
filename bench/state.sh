#!/bin/sh
# The console program's "state" under Wine, against a bare program that reads the same values.
# Call: state.sh
set -eu
cd "$(dirname "$0")/.."
. bench/limits.txt

cmake --preset xp -DQUILLMORE_BENCH=ON >/dev/null
cmake --build --preset xp --target QuillmoreCmd state barestate
failed=0

size=$(stat -c %s build/xp/QuillmoreCmd.exe)
awk -v size="$size" -v limit="$console_executable" 'BEGIN {
    printf "console       stripped ours %d bytes limit %d ratio %.2f %s\n", size, limit, size / limit,
           size <= limit ? "ok" : "TOO LARGE"
    exit size <= limit ? 0 : 1
}' || failed=1

# Z: is the build folder there.
tools/wine build/xp/bench/state.exe 'Z:\QuillmoreCmd.exe' 'Z:\bench\barestate.exe' || failed=1
exit $failed
