#!/bin/sh
# places.sh CATALOGUE HEADER: the places of the catalogue as initialisers of barestate.cpp, one
# for each that an option has, whether it ends in a backslash or not. A box that goes along with a
# check box and that check box both show their common place; of a group it is the first one.
set -eu
mkdir -p "$(dirname "$2")"
awk -F '\t' '
    function Literal(text) {
        gsub(/\\/, "\\\\\\\\", text)
        return "\"" text "\""
    }
    function Print(control) {
        if (!seen[control, $4, tolower($5), tolower($6)]++)
            print "{" $4 ", " Literal($4) ", " Literal($5) ", " Literal($6) "},"
    }
    $4 ~ /^HK(CR|CU|LM)$/ {
        sub(/\\$/, "", $5)
        Print($2)
        if (match($8, /when chk[A-Za-z]+/)) Print(substr($8, RSTART + 5, RLENGTH - 5))
        if (match($9, /text of txt[A-Za-z]+/) && !along[substr($9, RSTART, RLENGTH)]++)
            Print(substr($9, RSTART, RLENGTH))
    }
' "$1" >"$2"
