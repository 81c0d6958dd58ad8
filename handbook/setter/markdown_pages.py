"""Sections written in Markdown become HTML."""

import html
import pathlib
import re

from markdown_it import MarkdownIt
from markdown_it.token import Token

BOXES = {
    "de": {"Merke": "rule", "Beispiel": "example", "Häufiger Fehler": "mistake"},
    "en": {"Remember": "rule", "Example": "example", "Common mistake": "mistake"},
}
PAGE = {"de": "Seite", "en": "page"}
QUOTES = {"de": "„“‚‘", "en": "“”‘’"}
LINE = 85  # characters of a full line, about
INDEX_ENTRY = re.compile(r"\s*\{index:([^}]*)\}")
UNIT = re.compile(r"(?<=\d) (?=(?:NM|kt|ft|m|MHz|kHz|Hz)\b)")  # stands with its number


class SourceError(Exception):
    """What is wrong in a source, told with file and line. It stops the book."""

    def __init__(self, path, line, text):
        super().__init__(f"{path}:{line}: {text}" if line else f"{path}: {text}")


class Writer:
    """Writes the HTML of one section after the other."""

    def __init__(self, sections, figures, language):
        self.pages = {section.name: section.page for section in sections}
        self.figures = figures
        self.language = language
        self.markdown = MarkdownIt("commonmark", {"typographer": True, "quotes": QUOTES[language]})
        self.markdown.enable(["table", "smartquotes"])
        self.used = set()  # figures

    def html(self, section):
        """The section's text. Collects its index entries in `section.index`."""
        self.section = section
        tokens = self.markdown.parse(section.path.read_text(encoding="utf-8"))
        for i, token in enumerate(tokens):
            self.line = token.map[0] + 1 if token.map else 0
            if token.type == "heading_open" and token.tag != "h2":
                self.refuse("only headings of the second level; the title stands in the menu")
            elif token.type == "blockquote_open":
                self.take_box(token, tokens[i + 2])
            elif token.type == "inline":
                self.take_words(tokens[i - 1], token, tokens[i + 1])
        return self.markdown.renderer.render(kept_together(tokens), self.markdown.options, {})

    def refuse(self, text):
        raise SourceError(self.section.path, self.line, text)

    def take_box(self, box, words):
        opening = re.match(r"\*\*(.+?)[.:]?\*\*", words.content)
        kind = BOXES[self.language].get(opening.group(1) if opening else "")
        if not kind:
            self.refuse("a box begins with one of " + ", ".join(BOXES[self.language]))
        box.attrSet("class", kind)

    def take_words(self, opening, inline, closing):
        images = [child for child in inline.children if child.type == "image"]
        if images:
            opening.tag = closing.tag = "figure"
            inline.children = [raw(self.figure(images))]
            return
        for i, child in enumerate(inline.children):
            if child.type == "link_open":
                self.take_link(child, inline.children[i + 1])
        inline.children = [each for child in inline.children for each in self.take_entries(child)]

    def take_entries(self, child):
        """Where index entries stood in a text, there are places to which the index leads."""
        if child.type != "text":
            return [child]
        entries = INDEX_ENTRY.findall(child.content)
        child.content = UNIT.sub("\u00a0", INDEX_ENTRY.sub("", child.content))
        places = []
        for entry in entries:
            place = f"{self.section.name}-index{len(self.section.index)}"
            self.section.index.append((entry.strip(), place))
            places.append(raw(f'<span id="{place}"></span>'))
        return [child, *places]

    def take_link(self, link, words):
        name = link.attrs["href"]
        if name not in self.pages:
            self.refuse(f"the book has no section {name}")
        link.attrs["href"] = f"#{name}"
        words.content += f" ({PAGE[self.language]}\u00a0{self.pages[name]})"

    def figure(self, images):
        """Pictures of one paragraph stand side by side, above what they show."""
        shown = "".join(self.picture(image) for image in images)
        captions = [image.content.strip() for image in images if image.content]
        caption = " ".join(each if each[-1] in ".:!?,;" else each + "." for each in captions)
        if not caption:
            self.refuse("a figure without words")
        row = "row three" if len(images) > 2 else "row"
        return (f'<div class="{row}">{shown}</div>'
                f"<figcaption>{html.escape(caption)}</figcaption>")

    def picture(self, image):
        name = pathlib.Path(image.attrs["src"]).stem
        path = self.figures / f"{name}.svg"
        if not path.exists():
            self.refuse(f"there is no figure {name}")
        self.used.add(name.rsplit("-", 1)[0])
        kind = name.rsplit("-", 1)[1]
        return f'<img class="{kind}" src="{path.as_uri()}">'


def kept_together(tokens):
    """A heading stands in one box with the block behind it, so that no page ends between them, and a
    line that leads over with what it leads to."""
    kept = []
    ends = 0  # of the block behind a heading, counted in `tokens`
    for i, token in enumerate(tokens):
        if (token.type == "paragraph_open" and printed(tokens[i + 1]).endswith(":")
                and tokens[i - 1].type != "heading_close"):
            token.attrSet("class", "leads")
        if token.type == "heading_open":
            lead = tokens[i + 3].type == "paragraph_open" and leads_over(printed(tokens[i + 4]))
            kept.append(raw(f'<div class="together{" leads" if lead else ""}">'))
            ends = end_of_block(tokens, i + 3)
        kept.append(token)
        if ends and i == ends:
            kept.append(raw("</div>"))
            ends = 0
    return kept


def leads_over(words):
    """Whether a heading with these words would be lost before the end of a page."""
    return len(words) < LINE * (3 if words.endswith(":") else 2)


def printed(inline):
    return INDEX_ENTRY.sub("", inline.content)


def end_of_block(tokens, first):
    depth = 0
    for i in range(first, len(tokens)):
        depth += tokens[i].nesting
        if depth == 0:
            return i
    return first - 1


def raw(text):
    token = Token("html_inline", "", 0)
    token.content = text
    return token
