#!/usr/bin/env python3
"""rooms.py [FOLDER]: the plan of the house is true. Every folder of src/ is a room with a floor; what
a file includes, its room says that it uses; and it uses lower floors only. Headers of Windows stand
only where Windows is known. Lists of sources are complete, sorted, and have one name a line."""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent / "../..").resolve()
# The executable stands on top of all rooms, so it may use any of them.
PROGRAM = Path("src/program")
KNOWS_WINDOWS = (Path("src/platform/win32"), PROGRAM)
KEYWORDS = ("SOURCES", "ALONE", "USES", "SYSTEM")
faults = []


def fault(place, text):
    faults.append(f"{place}: {text}")


def lists_of(text):
    """The lists of each call of add_room or add_suite: (function, name, {keyword: [lines]})."""
    for call in re.finditer(r"\b(add_room|add_suite)\((\w+)(.*?)\)", text, re.S):
        lists, entries = {}, None
        for line in call[3].split("\n"):
            words = line.split()
            if not words or words[0] in ("FLOOR", "BUSY"):
                continue
            if words[0] in ("LONG", "PARTS"):
                entries = None
            elif words[0] in KEYWORDS:
                entries = lists.setdefault(words[0], [])
                entries += [" ".join(words[1:])] if words[1:] else []
            elif entries is not None:
                entries.append(line.strip())
        yield call, call[2], lists


def check_sources(place, text):
    """One source a line, and neighbours in order."""
    last = ""
    for number, line in enumerate(text.split("\n"), 1):
        words = line.rstrip(")").split()
        sources = [word for word in words if word.endswith(".cpp")] if '"' not in line else []
        if len(sources) > 1:
            fault(f"{place}:{number}", "more than one source")
        alone = words[0] if len(words) == 1 and sources else ""
        if alone and last > alone:
            fault(f"{place}:{number}", f"{alone} behind {last}")
        last = alone


rooms = {}  # by folder: name, floor, used rooms
scripts = [ROOT.glob(f"{top}/**/CMakeLists.txt") for top in ("src", "tests", "bench")]
for path in sorted(script for found in scripts for script in found):
    place = path.relative_to(ROOT)
    check_sources(place, path.read_text(encoding="utf-8"))
    for call, name, lists in lists_of(path.read_text(encoding="utf-8")):
        for keyword, entries in lists.items():
            if any(" " in entry for entry in entries):
                fault(place, f"{keyword} of {name} has more than one name a line")
            if entries != sorted(entries):
                fault(place, f"{keyword} of {name} is not sorted")
        if call[1] == "add_room":
            floor = re.search(r"\bFLOOR (\d+)", call[0])
            if not floor:
                fault(place, f"{name} has no floor")
            listed = {*lists.get("SOURCES", []), *lists.get("ALONE", [])}
            there = {source.name for source in path.parent.glob("*.cpp")}
            if listed != there:
                fault(place, f"listed or there, but not both: {' '.join(sorted(listed ^ there))}")
            rooms[place.parent] = (name, int(floor[1]) if floor else 0, lists.get("USES", []))

floors = {name: floor for name, floor, _ in rooms.values()}
for folder, (name, floor, uses) in rooms.items():
    for used in uses:
        if floors.get(used, floor) >= floor:
            fault(folder, f"floor {floor} uses {used}, which is no room of a lower floor")

included = {folder: set() for folder in rooms}
for path in sorted(ROOT.glob("src/**/*")):
    if path.suffix not in (".h", ".cpp", ".in"):
        continue
    place = path.relative_to(ROOT)
    folder = place.parent
    if folder not in rooms and folder != PROGRAM:
        fault(place, "belongs to no room")
        continue
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        include = re.match(r'\s*#\s*include\s*(["<])([^">]+)', line)
        if not include:
            continue
        knows = any(folder.is_relative_to(room) for room in KNOWS_WINDOWS)
        if include[1] == "<" and include[2].endswith(".h") and not knows:
            fault(f"{place}:{number}", f"<{include[2]}> is not of the standard library")
        other = Path("src", include[2]).parent
        if include[1] != '"' or other == folder or folder == PROGRAM:
            continue
        if other not in rooms:
            fault(f"{place}:{number}", f'"{include[2]}" lies in no room')
        elif rooms[other][0] not in rooms[folder][2]:
            fault(f"{place}:{number}", f"{rooms[folder][0]} does not say that it uses {rooms[other][0]}")
        else:
            included[folder].add(rooms[other][0])

for folder, (name, _, uses) in rooms.items():
    for used in sorted(set(uses) & set(floors) - included[folder]):
        fault(folder, f"says that it uses {used}, and does not")

if not rooms:
    fault(ROOT, "no rooms")
print("\n".join(faults), file=sys.stderr)
sys.exit(bool(faults))
