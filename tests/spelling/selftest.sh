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

# The same of what goes along with the programs: where the text stands, and the text.
Handout() {
    rm -rf "$work/packaging"
    mkdir -p "$work/packaging"
    echo "$2" >"$work/packaging/$1"
    local said=0 output
    output=$("$here/handouts.sh" "$work" /dev/null 2>&1) || said=1
    if [[ -z $3 && $said == 1 || -n $3 && ($said == 0 || $output != *"$3"*) ]]; then
        echo "of $1 with $2 it said: $output" >&2
        failures=$((failures + 1))
    fi
}

Handout Liesmich.txt 'Die Größe der Auswahl, C:\Auswal /AUSWAL Auswal.exe' ''
Handout Liesmich.txt 'Die Grösse der Auswahl' 'Grösse: not'
Handout Sicherung.cmd 'echo Die Auswal ist fertig.' 'Auswal: not'
Handout Sicherung.cmd 'title Die Auswal' 'Auswal: not'
Handout Sicherung.cmd 'echo Die Auswahl
rem Die Auswal
set Auswal=1' ''
Handout Quillmore.nsi 'Label "Für &alle$\r$\nAuswahl im ${FOLDER} von $INSTDIR" "Auswal" "Software\Die Auswal"' ''
Handout Quillmore.nsi 'Label "Für &ale"' 'ale: not'
Handout Quillmore.nsi 'MessageBox "Für alle.$\r$\nAuswal" /SD IDOK' 'Auswal: not'
Handout Quillmore.nsi '; "Die Auswal"
Label "Die Auswahl"' ''
Handout other.txt 'Auswal' 'no texts'

# Without the checker there is no result, and the message says what to install.
if output=$(PATH=$work "$BASH" "$here/spelling.sh" 2>&1) ||
    [[ $output != *"install hunspell and hunspell-de-de"* ]]; then
    echo "without hunspell it said: $output" >&2
    failures=$((failures + 1))
fi
exit $((failures > 0))
