# To be sourced after tools/wine-environment: what a test compares that must leave nothing behind.

# DumpPrefix [FIND-EXPRESSION...]: the whole registry as it stands on the disk, without the times of
# keys; and of drive C: each file, with what is in it, and folder for which the expression holds, its
# paths as from there. Left out is what Wine itself writes at a start: its list of the fonts of the
# system around it, what its driver of the screen is, with the date of today and a number that no
# other start has, and how its console looks.
DumpPrefix() {
    local hive
    EndWine
    for hive in system user userdef; do
        sed -e '/^\[Console\]/,/^$/d' -e '/^\[.*{4D36E968-E325-11CE-BFC1-08002BE10318}\\\\0000\]/,/^$/d' \
            -e '/^@=hex(ffff0008):/d' -e '/^#time=/d' -e 's/^\(\[.*\]\) [0-9]*$/\1/' \
            -e '/^"[^"]* (TrueType)"=/d' -e "s/^/$hive: /" "$prefix/$hive.reg"
    done
    (cd "$prefix/drive_c" && find . -mindepth 1 "$@" \
        \( -type f -exec sha256sum {} + -o -print \) | LC_ALL=C sort)
}
