#!/bin/bash
# A misspelt word is found in a folder that holds nothing else, and right ones pass.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
failures=0

# The text of a source, the list of words, and what the check must say; "" when it must be content.
Expect() {
    mkdir -p "$work/src"
    echo "$1" >"$work/src/sample.cpp"
    echo "$2" >"$work/words"
    local said=0 output
    output=$("$here/spelling.sh" "$work/src" "$work/words" 2>&1) || said=1
    if [[ -z $3 && $said == 1 || -n $3 && ($said == 0 || $output != *"$3"*) ]]; then
        echo "of $1 with '$2' it said: $output" >&2
        failures=$((failures + 1))
    fi
}

Expect 'Show("Größe der Auswahl");' '' ''
Expect 'Show("Grösse der Auswahl");' '' 'Grösse: not in the dictionary: ./sample.cpp'
Expect 'Show("Eine Auswal");' '' 'Auswal: not'
Expect 'Show("Eine \"Auswal\"");' '' 'Auswal: not'
Expect 'Show("Zeile\r\nAuswal");' '' 'Auswal: not'
Expect 'Show("eine festplatte");' '' 'festplatte: not'
Expect 'Show("Auswal");' '' 'Auswal: not'
Expect 'Show("Eine Auswal");' '! Auswal' ''
Expect 'Show("Eine Auswahl");' 'Auswal' 'Auswal: needless'
Expect 'Show("Eine Auswahl");' 'Auswahl' 'Auswahl: needless'
Expect '// Show("Eine Auswal");
Show("chkAuswal", "Eine C:\\Auswal", "Auswal.exe steht hier", "MTUx");' '' ''
Expect 'int x;' '' 'no texts'

# Without the checker there is no result, and the message says what to install.
if output=$(PATH=$work "$BASH" "$here/spelling.sh" 2>&1) ||
    [[ $output != *"install hunspell and hunspell-de-de"* ]]; then
    echo "without hunspell it said: $output" >&2
    failures=$((failures + 1))
fi
exit $((failures > 0))
