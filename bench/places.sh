#!/bin/sh
# places.sh CATALOGUE HEADER: the places of the catalogue as initialisers of barestate.cpp, one
# for each that an option has, whether it ends in a backslash or not.
set -eu
mkdir -p "$(dirname "$2")"
awk -F '\t' '
    function Literal(text) {
        gsub(/\\/, "\\\\\\\\", text)
        return "\"" text "\""
    }
    $4 ~ /^HK(CR|CU|LM)$/ {
        sub(/\\$/, "", $5)
        if (!seen[$2, $4, tolower($5), tolower($6)]++)
            print "{" $4 ", " Literal($4) ", " Literal($5) ", " Literal($6) "},"
    }
' "$1" >"$2"
