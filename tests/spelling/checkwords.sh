# To be sourced by what looks for misspelt words.
export LC_ALL=C.UTF-8
if ! hunspell -d de_DE -l </dev/null >/dev/null 2>&1; then
    echo "spelling: no hunspell with a German dictionary; install hunspell and hunspell-de-de" >&2
    exit 1
fi

# CheckWords FOUND LIST: of the lines of FOUND, a word, a tabulator and its file, prints those words
# that neither the dictionary nor the file LIST knows, and of LIST those that it need not have. Ends
# with 1 when there is any, or nothing in FOUND.
CheckWords() {
    local found=$1 list=$2 allowed unknown word result=0
    if [[ -z $found ]]; then
        echo "spelling: no texts in $PWD" >&2
        return 1
    fi
    # The mark of what is misspelt on purpose is for readers.
    allowed=$(sed '/^#/d; /^$/d; s/^! //' "$list" | sort -u)
    unknown=$(cut -f1 <<<"$found" | sort -u | hunspell -d de_DE -i UTF-8 -l | sort -u)
    while read -r word; do
        [[ -n $word ]] || continue
        echo "$word: not in the dictionary: $(grep -P "^$word\t" <<<"$found" | cut -f2 | tr '\n' ' ')"
        result=1
    done < <(comm -23 <(echo "$unknown") <(echo "$allowed"))
    while read -r word; do
        [[ -n $word ]] || continue
        echo "$word: needless in $(basename "$list"): no text has it, or the dictionary knows it"
        result=1
    done < <(comm -13 <(echo "$unknown") <(echo "$allowed"))
    return $result
}
