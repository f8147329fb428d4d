#!/usr/bin/env python3
"""check.py ARCHIVE: what is wrong with the manual, one problem a line."""

import collections
import pathlib
import sys

import manual

# Far fewer controls than the program has mean that its sources were not understood.
FEWEST_CAPTIONS = 120
TABS = 8

# Replaced before anybody sees it: the service pack stands there, or nothing.
NEVER_SEEN = {"n/A"}


def archive_problems(archive):
    """The archive is whole: every picture and every link leads somewhere within it."""
    page = archive.page
    yield from archive.problems
    yield from page.problems
    shown = {archive.resolve(source) for source, _ in page.pictures}
    for place in sorted(shown - set(archive.pictures)):
        yield f"the picture {place} is not in the archive"
    for place in sorted(set(archive.pictures) - shown):
        yield f"the picture {place} is shown nowhere"
    for place, data in archive.pictures.items():
        if data[:8] != b"\x89PNG\r\n\x1a\n":
            yield f"{place} is no PNG picture"
    for source, words in page.pictures:
        if not words:
            yield f"{source} says nothing to those who do not see it"
    for link in sorted(set(page.links)):
        if not link.startswith("#"):
            yield f"the link {link} leads out of the manual"
        elif link[1:] not in page.anchors:
            yield f"the link {link} leads nowhere"
    for anchor, count in collections.Counter(page.anchors).items():
        if count > 1:
            yield f"the anchor {anchor} stands {count} times"


def content_problems(page, sources):
    """What the manual says of the program's window is there, and nothing there is left out."""
    if len(sources.tabs) != TABS or len(sources.captions) < FEWEST_CAPTIONS:
        yield "the program's sources were not understood"
    for tab in sources.tabs:
        if f"Seite {tab}" not in page.headings:
            yield f'the page "{tab}" has no chapter'
        if f"Die Seite {tab}" not in [words for _, words in page.pictures]:
            yield f'the page "{tab}" has no picture'
    quoted = manual.quotes(page.text)
    for quote in sorted(set(quoted)):
        if quote not in sources.texts:
            yield f"„{quote}“ is nowhere in the program"
    if page.text.count("„") != page.text.count("“") or page.text.count("„") != len(quoted):
        yield "a quotation is not closed"
    told = manual.quotes(page.chapters)
    for name, caption in sorted(sources.captions):
        if caption not in told and caption not in NEVER_SEEN:
            yield f"„{caption}“ ({name}) is not in the manual"


def main():
    archive = manual.Archive(pathlib.Path(sys.argv[1]).read_bytes())
    sources = manual.Sources(manual.SOURCES)
    problems = [*archive_problems(archive), *content_problems(archive.page, sources)]
    for problem in problems:
        print(problem)
    print(
        f"{len(archive.page.links)} links, {len(archive.pictures)} pictures, "
        f"{len(manual.quotes(archive.page.text))} quotations, {len(sources.captions)} captions"
    )
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
