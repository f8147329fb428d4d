#!/bin/bash
# Every word that the user sees is spelt as the German dictionary spells it, or stands in words.txt.
# The words come from the string literals of the sources.
# spelling.sh [FOLDER [WORDS]]: the sources and the list of the project by default.
set -euo pipefail
source "${BASH_SOURCE[0]%/*}/checkwords.sh"
here=$(cd "$(dirname "$0")" && pwd)
sources=$(cd "${1:-$here/../../src}" && pwd)
list=$(realpath "${2:-$here/words.txt}")

# What speaks to developers: the simulated machine; the messages of mistakes in the program, which
# stand on the line of their exception; and the failures of cRegistry, whose English is wanted so.
Sources() {
    find . -path ./platform/simulated -prune -o -path './registry/cregistry.*' -prune -o \
        \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z
}

# The words of each literal, with its file; a quote between apostrophes begins none. What is written together with digits, underscores or
# capitals inside is a name, and so is what stands alone and begins small; then there are paths, file
# names and the patterns of dates.
Words() {
    xargs -0 -r perl -CSD -Mutf8 -ne '
        next if m{^\s*(//|#include|static_assert)|Mistake\(|logic_error};
        s{\x27(?:\\.|[^\x27\\])\x27}{ }g;
        for my $text (/"((?:[^"\\]|\\.)*)"/g) {
            next if $text =~ /\\\\|^\w*$/ && $text !~ /^\p{Lu}\p{Ll}+$/;
            $text =~ s{\\[rnt"]|%\w+%?|\w+://\S+}{ }g;
            $text =~ s/&&?//g;
            $text =~ s/[\w-]*\w\.\w[\w.-]*|\.\w+/ /g;
            for my $word ($text =~ /\w+/g) {
                next if $word =~ /[\d_]|\p{Ll}\p{Lu}/ || length $word < 2;
                print "$word\t$ARGV\n";
            }
        }'
}

cd "$sources"
CheckWords "$(Sources | Words | sort -u)" "$list"
