#!/usr/bin/env python3
"""spelling.py ARCHIVE [WORDS]: every word of the manual is spelt as the German dictionary spells it,
or stands in words.txt beside this script, which holds no other. Captions are the program's own."""

import pathlib
import re
import subprocess
import sys

import manual

HUNSPELL = ["hunspell", "-d", "de_DE", "-i", "UTF-8", "-l"]
FEWEST_WORDS = 1000


def words(page):
    prose = re.sub("„[^“]*“", " ", page.prose)
    return set(re.findall(r"[^\W\d_]{2,}", prose))


def main():
    archive = manual.Archive(pathlib.Path(sys.argv[1]).read_bytes())
    beside = pathlib.Path(__file__).resolve().parent / "words.txt"
    listed = pathlib.Path(sys.argv[2] if len(sys.argv) > 2 else beside)
    allowed = set(listed.read_text(encoding="utf-8").split())
    used = words(archive.page)
    if len(used) < FEWEST_WORDS:
        print("the manual has hardly a word")
        return 1
    answer = subprocess.run(
        HUNSPELL, input="\n".join(sorted(used)), capture_output=True, text=True, check=True
    )
    unknown = set(answer.stdout.split())
    for word in sorted(unknown - allowed):
        print(f"{word}: not in the dictionary")
    for word in sorted(allowed - unknown):
        print(f"{word}: needless in words.txt")
    return 1 if unknown != allowed else 0


if __name__ == "__main__":
    sys.exit(main())
