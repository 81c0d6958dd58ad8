#!/usr/bin/python3
"""Sets the handbook: sections, each on the page by which the menu finds it, and between them
plates of exercises. A source that does not fit stops it with its line."""

import argparse
import itertools
import json
import pathlib
import sys

import weasyprint

import front_matter
from markdown_pages import SourceError, Writer
from plates import Plates

INDEX = "bookIndex"  # made of the entries in all others


class Section:
    """One section: its place in the book and its source."""

    def __init__(self, row, folder, language):
        self.name, self.page = row["name"], row["page"]
        self.title, self.chapter = row["title"], row["chapter"]
        self.path = folder / f"{self.name}.{language}.md"
        self.index = []  # entries, each with its place


class Book:
    """Pages that are set so far, the last of them with the number `len(pages)`."""

    def __init__(self, language, style):
        self.language = language
        self.style = style
        self.pages = []
        self.document = None
        self.sections = []  # that are set

    def append(self, body, chapter=""):
        """Sets `body` on the next pages."""
        number = len(self.pages) + 1
        page = f"<style>@page :first {{ counter-reset: page {number} }}</style>"
        title = front_matter.TITLE[self.language]
        source = weasyprint.HTML(
            string=f"<html lang='{self.language}'><head><title>{title}</title>{page}</head>"
                   f"<body data-chapter='{chapter}'>{body}</body></html>")
        self.document = source.render(stylesheets=[self.style])
        self.pages += self.document.pages

    def pages_of_places(self):
        return {place: number for number, page in enumerate(self.pages, 1)
                for place in page.anchors}

    def write(self, path):
        self.document.copy(self.pages).write_pdf(path)


def set_sections(book, sections, writer, plates):
    """Sets them all, and raises what is wrong with any of them."""
    wrong = []
    for page, together in itertools.groupby(sections, key=lambda section: section.page):
        try:
            make_room(book, page, plates, wrong)
            set_together(book, page, list(together), writer)
        except SourceError as error:
            wrong.append(str(error))
    if wrong:
        raise SystemExit("\n".join(wrong))


def make_room(book, page, plates, wrong):
    over = len(book.pages) + 1 - page
    if over > 0:
        wrong.append(f"{book.sections[-1].path}: too long by {over} pages")
        del book.pages[page - 1:]
    plates.fill(book, page, book.sections[-1] if book.sections else None)


def set_together(book, page, sections, writer):
    book.append("".join(body_of(section, writer, book) for section in sections),
                sections[0].chapter)
    for section in sections:
        if section.name not in book.pages[page - 1].anchors:
            raise SourceError(section.path, 0, f"its title is not on page {page}")


def body_of(section, writer, book):
    heading = f'<h1 id="{section.name}">{section.title}</h1>'
    if section.name == INDEX:
        return heading + front_matter.index(book.sections, book.pages_of_places())
    book.sections.append(section)
    return heading + writer.html(section)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("language", "sources", "table", "plates", "figures", "style", "out"):
        parser.add_argument(f"--{name}", required=True)
    given = parser.parse_args()
    table = json.loads(pathlib.Path(given.table).read_text(encoding="utf-8"))
    folder = pathlib.Path(given.sources)
    sections = [Section(row, folder, given.language) for row in table]
    writer = Writer(sections, pathlib.Path(given.figures).resolve(), given.language)
    sections = [section for section in sections if section.path.exists() or section.name == INDEX]
    figures = pathlib.Path(given.figures).resolve()
    book = Book(given.language, weasyprint.CSS(given.style))
    book.append(front_matter.cover(given.language, next(figures.glob("adf-position-left.svg"))))
    book.append(front_matter.about_plates(given.language))
    book.append(front_matter.contents(given.language, sections))
    plates = Plates(pathlib.Path(given.plates), figures, given.language,
                    {row["name"] for row in table})
    set_sections(book, sections, writer, plates)
    if plates.notes:
        print(f"{given.out}: {plates.notes} pages are free for notes")
    pathlib.Path(given.out).parent.mkdir(parents=True, exist_ok=True)
    book.write(given.out)


if __name__ == "__main__":
    try:
        main()
    except SourceError as error:
        sys.exit(str(error))
