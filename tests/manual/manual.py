"""What the tests of the manual read: the finished web archive, and the program's sources."""

import email
import html.parser
import pathlib
import re
import urllib.parse

SOURCES = pathlib.Path(__file__).resolve().parent.parent.parent / "src"

# Elements that have no end tag.
VOID = {"meta", "link", "img", "br", "hr", "wbr"}

# The last chapter, made from the program itself: it has every caption whatever the others say.
APPENDIX = "anhang"


class Page(html.parser.HTMLParser):
    """The page of the archive: its anchors, links, pictures, headings and text. The prose is the
    text without names of files and the like, its blocks apart; the chapters are the text in front
    of the appendix."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.anchors, self.links, self.pictures, self.headings = [], [], [], []
        self.text, self.prose, self.problems = "", "", []
        self.chapters = None
        self._open = []
        self.feed(text)
        self.close()
        if self.chapters is None:
            self.chapters = self.text
        self.problems += [f"<{tag}> is not closed" for tag in self._open]

    def handle_starttag(self, tag, attributes):
        facts = dict(attributes)
        if tag not in VOID:
            self._open.append(tag)
        if tag in ("td", "th"):
            self.prose += " "
        if tag == "a" and "name" in facts:
            self.anchors.append(facts["name"])
            if facts["name"] == APPENDIX:
                self.chapters = self.text
        if tag == "a" and "href" in facts:
            self.links.append(facts["href"])
        if tag == "img":
            self.pictures.append((facts.get("src", ""), facts.get("alt", "")))
        if tag == "h1":
            self.headings.append("")

    def handle_endtag(self, tag):
        if self._open and self._open[-1] == tag:
            self._open.pop()
        else:
            self.problems.append(f"</{tag}> closes nothing")

    def handle_data(self, data):
        if "style" in self._open:
            return
        self.text += data
        if "tt" not in self._open:
            self.prose += data
        if "h1" in self._open:
            self.headings[-1] += data


class Archive:
    """A web archive: `page` is its text, `pictures` the data of its pictures by their place."""

    def __init__(self, data):
        self.problems = []
        self.page, self.pictures, self.place = Page(""), {}, ""
        message = email.message_from_bytes(data)
        if message.get_content_type() != "multipart/related" or not message.is_multipart():
            self.problems.append("it is no multipart/related message")
            return
        if data.count(b"\n") != data.count(b"\r\n"):
            self.problems.append("a line does not end in CR LF")
        root, *others = message.get_payload()
        if root.get_content_type() != "text/html":
            self.problems.append("its first part is no page")
            return
        self.place = root["Content-Location"]
        self.page = Page(root.get_payload(decode=True).decode(root.get_content_charset()))
        for part in others:
            self.pictures[part["Content-Location"]] = part.get_payload(decode=True)

    def resolve(self, name):
        return urllib.parse.urljoin(self.place, name)


def plain(text):
    """A caption as a reader sees it: without its access key and blanks that nobody sees."""
    # Buttons have theirs as a property.
    text = text.removeprefix("TX=")
    text = text.replace("&&", "\0").replace("&", "").replace("\0", "&")
    return " ".join(text.split())


LITERAL = r'"((?:[^"\\\n]|\\.)*)"'
CONTROL = r"(?:chk|cmd|mnu|lbl|opt)\w{2,}(?:\(\d+\))?"
# What stands behind a control's name in lists of controls and in presets.
OTHER = r"[a-z]{3}[A-Z]\w*(?:\(\d+\))?|\d+"
BETWEEN = r"\s*,\s*(?:controls::Persisted{)?"
ESCAPES = {"n": "\n", "r": "\r", "t": "\t"}


def unescape(text):
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match.group(1), match.group(1)), text)


class Sources:
    """What the program shows: `texts` of every kind, `captions` with their controls, `tabs`."""

    def __init__(self, root):
        self.texts, self.captions, self.tabs = set(), set(), []
        for path in sorted([*root.rglob("*.cpp"), *root.rglob("*.h")]):
            code = re.sub(r"^\s*//.*$", "", path.read_text(encoding="utf-8"), flags=re.MULTILINE)
            # Literals that stand one behind the other are one.
            code = re.sub(r'(?<!\\)"\s*\n\s*"', "", code)
            for literal in re.findall(LITERAL, code):
                for line in unescape(literal).splitlines():
                    self.texts.add(plain(line))
            if path.name != "helptexts.cpp":
                for name, caption in re.findall(f'"({CONTROL})"{BETWEEN}{LITERAL}', code):
                    if caption and not re.fullmatch(OTHER, caption):
                        self.captions.add((name, plain(unescape(caption))))
            strip = re.search(r'"SSTab1"[^{;]*{([^}]*)}', code)
            if strip:
                self.tabs = [plain(unescape(tab)) for tab in re.findall(LITERAL, strip.group(1))]


def quotes(text):
    return [" ".join(quote.split()) for quote in re.findall("„([^“]*)“", text)]
