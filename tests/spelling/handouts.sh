#!/bin/bash
# Every word of what goes along with the programs is spelt as the German dictionary spells it, or
# stands in handouts.txt: the texts, what the batch files print, and what the installer shows.
# handouts.sh [FOLDER [WORDS]]: the project and its list by default.
set -euo pipefail
source "${BASH_SOURCE[0]%/*}/checkwords.sh"
here=$(cd "$(dirname "$0")" && pwd)
list=$(realpath "${2:-$here/handouts.txt}")
cd "${1:-$here/../..}"

# The words of a text, with its file. Paths, file names, switches and what is written together with
# digits, underscores or capitals inside are names.
Words() {
    perl -CSD -Mutf8 -e '
        for my $file (@ARGV) {
            open my $in, "<:utf8", $file or die "$file: $!\n";
            while (<$in>) {
                my @texts = ($_);
                if ($file =~ /\.nsi$/) {
                    next if /^\s*;/;
                    @texts = grep { !/\\(?![rn])/ && / / } map { s/\$\\[rn]/ /gr } /"((?:[^"]|\$\\")*)"/g;
                } elsif ($file =~ /\.cmd$/) {
                    @texts = /^\s*(?:echo|title)[ .](.*)/i;
                }
                for my $text (@texts) {
                    $text =~ s/\$\{\w+\}|\$\w+|\@\w+\@|%[~\w]+%?/ /g;
                    $text =~ s/&//g;
                    $text =~ s{\S*\\\S*|(?<!\w)[/-]\w[\w=:?]*|[\w-]*\w\.\w[\w.-]*|\.\w+}{ }g;
                    for my $word ($text =~ /\w+/g) {
                        next if $word =~ /[\d_]|\p{Ll}\p{Lu}/ || length $word < 2;
                        print "$word\t$file\n";
                    }
                }
            }
        }' "$@"
}

shopt -s nullglob

shopt -s nullglob
CheckWords "$(Words {packaging,tests/kit}/{[L]iesmich.txt,*.cmd,*.nsi} | sort -u)" "$list"
