#!/usr/bin/env python3
"""check.py GENERATED: the icon, the pictures of the tabs and the version blocks are what Windows XP shows."""

import pathlib
import re
import struct
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
RESOURCES = ROOT / "resources"
GENERATED = pathlib.Path(sys.argv[1])
PNG = b"\x89PNG"
SIZES = (16, 32, 48)
TABS = 8
PICTURE = 16
MAGENTA = b"\xff\x00\xff\x00"
GERMAN = 0x0407


def frames(icon):
    """(width, bits a pixel, data) of each picture in the icon."""
    _, kind, count = struct.unpack_from("<HHH", icon)
    assert kind == 1
    for at in range(6, 6 + 16 * count, 16):
        width, _, _, _, _, bits, length, place = struct.unpack_from("<BBBBHHII", icon, at)
        yield width, bits, icon[place : place + length]


class Resources(unittest.TestCase):
    def test_the_icon_has_each_size_in_256_colours_and_in_true_colour_uncompressed(self):
        found = []
        for width, bits, data in frames((RESOURCES / "Quillmore.ico").read_bytes()):
            self.assertFalse(data.startswith(PNG), f"{width} pixels: XP reads no PNG in an icon")
            size, across, down, _, depth, compression = struct.unpack_from("<IiiHHI", data)
            facts = (size, across, down, depth, compression)
            self.assertEqual(facts, (40, width, 2 * width, bits, 0))
            colours = 4 * 256 if bits == 8 else 0
            mask = width * (-(-width // 32) * 4)
            self.assertEqual(len(data), 40 + colours + width * width * bits // 8 + mask)
            found.append((bits, width))
        self.assertEqual(sorted(found), [(bits, size) for bits in (8, 32) for size in SIZES])

    def test_true_colour_frames_shine_through_at_their_edge_only(self):
        for width, bits, data in frames((RESOURCES / "Quillmore.ico").read_bytes()):
            if bits == 32:
                alpha = data[40 + 3 : 40 + 4 * width * width : 4]
                self.assertLess(alpha[0], 255, f"{width} pixels: the corner")
                self.assertEqual(alpha[width * width // 2 + width // 2], 255, f"{width} pixels")

    def test_the_tabs_have_one_picture_each_in_16_colours_on_magenta(self):
        strip = (RESOURCES / "tabs.bmp").read_bytes()
        width, height, _, bits = struct.unpack_from("<iiHH", strip, 18)
        self.assertEqual((width, height, bits), (TABS * PICTURE, PICTURE, 4))
        palette, pixels = strip[54 : 54 + 64], strip[54 + 64 :]
        self.assertEqual(palette[:4], MAGENTA)
        rows = [pixels[at : at + width // 2] for at in range(0, len(pixels), width // 2)]
        for tab in range(TABS):
            part = b"".join(row[tab * 8 : tab * 8 + 8] for row in rows)
            self.assertIn(0, part, f"picture {tab} leaves nothing free")
            self.assertGreater(sum(byte != 0 for byte in part), 30, f"picture {tab} is empty")

    def test_each_version_block_is_german_and_has_the_names_of_its_program(self):
        for program in ("Quillmore", "QuillmoreCmd"):
            script = (RESOURCES / f"{program}.rc").read_text(encoding="utf-8")
            for name in ("FILEVERSION", "PRODUCTVERSION"):
                self.assertIn(f"{name} VERSION_NUMBERS\n", script)
            for name in ("FileVersion", "ProductVersion"):
                self.assertIn(f'VALUE "{name}", VERSION_TEXT\n', script)
            self.assertIn(f'VALUE "InternalName", "{program}"\n', script)
            self.assertIn(f'VALUE "OriginalFilename", "{program}.exe"\n', script)
            self.assertIn('VALUE "ProductName", "Quillmore"\n', script)
            self.assertIn("LANGUAGE LANG_GERMAN, SUBLANG_GERMAN\n", script)
            self.assertIn(f'VALUE "Translation", 0x{GERMAN:04x}, 1200\n', script)
            self.assertIn(f'BLOCK "{GERMAN:04X}04B0"\n', script)
            self.assertIn('1 ICON "Quillmore.ico"\n', script)

    def test_the_version_is_that_of_the_project(self):
        project = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
        version = re.search(r"VERSION ([\d.]+) LANGUAGES", project).group(1)
        told = (GENERATED / "version.rc.h").read_text(encoding="utf-8")
        self.assertIn(f"#define VERSION_NUMBERS {version.replace('.', ',')}\n", told)
        self.assertIn(f'#define VERSION_TEXT "{version}"\n', told)
        source = (GENERATED / "app" / "version.h").read_text(encoding="utf-8")
        shown = [re.search(rf"int {name} = (\d+);", source).group(1)
                 for name in ("MajorVersion", "MinorVersion", "Revision")]
        # The third number is not shown, so no two versions may differ in it alone.
        self.assertEqual(version.split("."), [*shown[:2], "0", shown[2]])
        manifest = (GENERATED / "Quillmore.manifest").read_text(encoding="utf-8")
        self.assertIn(f'name="Quillmore" version="{version}"', manifest)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
