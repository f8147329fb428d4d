#!/bin/bash
# Every word that the user sees is spelt as the German dictionary spells it, or stands in words.txt.
# The words come from the string literals of the sources.
# spelling.sh [FOLDER [WORDS]]: the sources and the list of the project by default.
set -euo pipefail
export LC_ALL=C.UTF-8
if ! hunspell -d de_DE -l </dev/null >/dev/null 2>&1; then
    echo "spelling: no hunspell with a German dictionary; install hunspell and hunspell-de-de" >&2
    exit 1
fi

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
found=$(Sources | Words | sort -u)
if [[ -z $found ]]; then
    echo "spelling: no texts in $sources" >&2
    exit 1
fi
# The mark of what is misspelt on purpose is for readers.
allowed=$(sed '/^#/d; /^$/d; s/^! //' "$list" | sort -u)
unknown=$(cut -f1 <<<"$found" | sort -u | hunspell -d de_DE -i UTF-8 -l | sort -u)

result=0
while read -r word; do
    [[ -n $word ]] || continue
    echo "$word: not in the dictionary: $(grep -P "^$word\t" <<<"$found" | cut -f2 | tr '\n' ' ')"
    result=1
done < <(comm -23 <(echo "$unknown") <(echo "$allowed"))
while read -r word; do
    [[ -n $word ]] || continue
    echo "$word: needless in words.txt: no text has it, or the dictionary knows it"
    result=1
done < <(comm -13 <(echo "$unknown") <(echo "$allowed"))
exit $result
