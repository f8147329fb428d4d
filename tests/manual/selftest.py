#!/usr/bin/env python3
"""selftest.py ARCHIVE: the checks of the manual find each fault that is put into it."""

import pathlib
import quopri
import sys
import unittest

import check
import manual

DATA = pathlib.Path(sys.argv[1]).read_bytes()
PROGRAM = manual.Sources(manual.SOURCES)

HEAD, REST = DATA.split(b"quoted-printable\r\n\r\n", 1)
TEXT, TAIL = REST.split(b"\r\n------=", 1)


def with_text(old, new):
    """The archive with `new` where its page has `old` first."""
    text = quopri.decodestring(TEXT).decode("utf-8")
    if old not in text:
        raise AssertionError(f"the manual has no {old}")
    changed = quopri.encodestring(text.replace(old, new, 1).encode("utf-8"))
    changed = changed.replace(b"\r\n", b"\n").replace(b"\n", b"\r\n")
    return HEAD + b"quoted-printable\r\n\r\n" + changed + b"\r\n------=" + TAIL


def problems(data):
    archive = manual.Archive(data)
    found = [*check.archive_problems(archive), *check.content_problems(archive.page, PROGRAM)]
    return "\n".join(found)


class Faults(unittest.TestCase):
    def finds(self, data, problem):
        self.assertNotEqual(data, DATA, "nothing was broken")
        self.assertIn(problem, problems(data))

    def test_the_manual_as_it_stands_has_no_fault(self):
        self.assertEqual(problems(DATA), "")
        self.assertEqual(problems(with_text("Inhalt", "Inhalt")), "")

    def test_a_file_that_is_no_archive_is_found(self):
        self.finds(b"Anleitung", "no multipart/related message")

    def test_a_bare_line_feed_is_found(self):
        self.finds(DATA.replace(b"\r\n", b"\n", 1), "does not end in CR LF")

    def test_a_lost_picture_is_found(self):
        lost = DATA.replace(b"pictures/dfue.png\r\n", b"pictures/dfu.png\r\n")
        self.finds(lost, "dfue.png is not in the archive")

    def test_a_picture_that_nothing_shows_is_found(self):
        lost = with_text('src="pictures/dfue.png"', 'src="pictures/info.png"')
        self.finds(lost, "shown nowhere")

    def test_a_picture_without_words_is_found(self):
        self.finds(with_text('alt="Die Seite DFÜ"', 'alt=""'), "says nothing")

    def test_a_link_to_nowhere_is_found(self):
        self.finds(with_text('href="#dfue"', 'href="#dfu"'), "#dfu leads nowhere")

    def test_a_link_out_of_the_manual_is_found(self):
        self.finds(with_text('href="#dfue"', 'href="dfue.html"'), "leads out of the manual")

    def test_a_second_anchor_of_a_name_is_found(self):
        self.finds(with_text('name="pfade"', 'name="system"'), "stands 2 times")

    def test_an_element_left_open_is_found(self):
        self.finds(with_text("</ol>", ""), "<ol>")

    def test_a_page_without_its_chapter_is_found(self):
        self.finds(with_text("Seite DFÜ</h1>", "Seite</h1>"), '"DFÜ" has no chapter')

    def test_a_page_without_its_picture_is_found(self):
        self.finds(with_text("Die Seite DFÜ", "Ein Bild"), '"DFÜ" has no picture')

    def test_a_misquoted_caption_is_found(self):
        self.finds(with_text("„TCP/IP Tuning“", "„TCP/IP-Tuning“"), "is nowhere in the program")

    def test_a_caption_left_out_is_found(self):
        self.finds(with_text("„TCP/IP Tuning“", "Tuning"), "(chkTCPTuning) is not in the manual")

    def test_a_quotation_left_open_is_found(self):
        self.finds(with_text("„TCP/IP Tuning“", "„TCP/IP Tuning"), "a quotation is not closed")

    def test_sources_without_captions_are_found(self):
        empty = manual.Sources(manual.SOURCES / "runtime")
        found = [*check.content_problems(manual.Archive(DATA).page, empty)]
        self.assertIn("the program's sources were not understood", found)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
