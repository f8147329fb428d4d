#!/bin/bash
# Every path of the tree that a document names is there. Patterns are passed over, and what is called
# "uptime", the made-up example of docs/adding.md.
# paths.sh [FOLDER]: the project by default.
set -euo pipefail
cd "${1:-$(dirname "$0")/../..}"
paths=$(find . \( -name build -o -name .git \) -prune -o -name '*.md' -print0 |
    xargs -0 grep -oHP '(?<![\w./-])(bench|cmake|docs|resources|src|tests|tools)/[\w./-]*[\w/](?![\w./-]*[*])' |
    grep -v uptime | sort -u)
found=0
while IFS=: read -r document path; do
    if [[ ! -e $path ]]; then
        echo "$document: there is no $path" >&2
        found=1
    fi
done <<<"$paths"
exit $found
