#!/bin/bash
# Every source is laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/../.."
mapfile -d '' sources < <(find src tests bench -name '*.cpp' -print0 -o -name '*.h' -print0)
if ((${#sources[@]} == 0)); then
    echo "no sources found" >&2
    exit 1
fi
clang-format-19 --dry-run -Werror "${sources[@]}"
echo "${#sources[@]} sources are in format"
