"""Plates: situations with their needles, and their solutions behind, on pages between sections."""

import html
import json
import tomllib

from markdown_pages import SourceError

ON_PAGE = 3  # situations
MOST_BOXES = 6  # a longer list of offers leaves a line to write on
CONTENTS = "contents"  # stands in the table for the pages in front of the first section

WORDS = {
    "de": {"plate": "Tafel", "questions": "Fragen", "solutions": "Lösungen",
           "solved": "mit Lösungen", "page": "Seite", "notes": "Notizen",
           "exercises": "Übungen"},
    "en": {"plate": "Plate", "questions": "questions", "solutions": "solutions",
           "solved": "with solutions", "page": "page", "notes": "Notes",
           "exercises": "Exercises"},
}


class Course:
    """The situations of an exercise that no plate shows yet."""

    def __init__(self, path):
        made = json.loads(path.read_text(encoding="utf-8"))
        self.title = made["title"]
        self.left = made["situations"]


class Plates:
    """Fills free pages, with plates as long as situations are left."""

    def __init__(self, table, figures, language, sections):
        self.path = table
        self.figures = figures
        self.words = WORDS[language]
        self.courses = {path.name.removesuffix(".plates.json"): Course(path)
                        for path in sorted(figures.glob("*.plates.json"))}
        self.text = table.read_text(encoding="utf-8")
        self.behind = tomllib.loads(self.text)
        self.check(sections | {CONTENTS})
        self.count = 0
        self.notes = 0  # pages for which no situation was left

    def check(self, sections):
        for section, courses in self.behind.items():
            if section not in sections:
                self.refuse(section, "the book has no such section")
            for course in courses:
                if course not in self.courses:
                    self.refuse(section, f"there is no course {course}")

    def refuse(self, name, text):
        line = 1 + self.text[:self.text.index(f"\n{name} ") + 1].count("\n")
        raise SourceError(self.path, line, f"{name}: {text}")

    def fill(self, book, page, section):
        """Sets pages behind a section until the next one has the number `page`. Questions stand on
        the right, so that their solutions are behind them."""
        tips = section and section.name.startswith("tips")
        chapter = self.words["exercises"] if tips else section.chapter if section else ""
        while (next_page := len(book.pages) + 1) < page:
            situations = self.draw(section.name if section else CONTENTS)
            if not situations:
                self.notes += 1
                book.append(f'<div class="notes"><h1>{self.words["notes"]}</h1></div>')
                continue
            self.count += 1
            if next_page % 2 and next_page + 1 < page:
                plate = [self.questions(situations, next_page),
                         self.solutions(situations, next_page)]
            else:
                plate = [self.solved(situations)]
            book.append("".join(plate), chapter)
            if len(book.pages) + 1 != next_page + len(plate):
                names = ", ".join(situation["name"] for _, situation in situations)
                raise SourceError(self.path, 0, f"too much for a plate: {names}")

    def draw(self, section):
        """The next situations of the section's exercises, each with the exercise's title."""
        drawn = []
        courses = [self.courses[name] for name in self.behind.get(section, [])]
        while len(drawn) < ON_PAGE:
            course = next((course for course in courses if course.left), None)
            if not course:
                course = max(self.courses.values(), key=lambda each: len(each.left), default=None)
                if not course or not course.left:
                    return drawn
            else:
                courses.remove(course)
                courses.append(course)
            drawn.append((course.title, course.left.pop(0)))
        return drawn

    def heading(self, what, anchor, link=""):
        name = f'{self.words["plate"]} {self.count}'
        return (f'<h1 id="{anchor}{self.count}" title="{name} {what}">{name} '
                f'<span class="what">{what}</span>{link}</h1>')

    def link(self, what, anchor, page):
        return (f'<a class="over" href="#{anchor}{self.count}">{self.words[what]}: '
                f'{self.words["page"]} {page}</a>')

    def questions(self, situations, page):
        rows = "".join(
            f'<div class="situation"><div class="number">{number}</div>{self.asked(situation)}'
            f'<div class="words">{task(title, situation)}{questions_of(situation)}</div></div>'
            for number, (title, situation) in enumerate(situations, 1))
        heading = self.heading(self.words["questions"], "plate",
                               self.link("solutions", "solution", page + 1))
        return f'<div class="plate">{heading}{rows}</div>'

    def solutions(self, situations, page):
        rows = "".join(self.solution(number, each) for number, each in enumerate(situations, 1))
        heading = self.heading(self.words["solutions"], "solution",
                               self.link("questions", "plate", page))
        return f'<div class="plate">{heading}{rows}</div>'

    def solution(self, number, titled):
        title, situation = titled
        return (f'<div class="situation"><div class="number">{number}</div>'
                f'{self.picture(situation, "flown")}'
                f'<div class="words">{task(title, situation)}{table_of(situation)}</div></div>')

    def solved(self, situations):
        """Questions and solutions together, on a page that has none behind it."""
        rows = "".join(self.solved_one(number, each) for number, each in enumerate(situations, 1))
        return f'<div class="plate">{self.heading(self.words["solved"], "plate")}{rows}</div>'

    def solved_one(self, number, titled):
        title, situation = titled
        dials = self.dials(situation)
        if not dials:
            return self.solution(number, titled)
        return (f'<div class="situation solved"><div class="number">{number}</div>'
                f'<div class="words">{task(title, situation)}<div class="pictures">{dials}'
                f'{self.picture(situation, "flown")}</div>{answers_of(situation)}</div></div>')

    def asked(self, situation):
        """The dials, or the chart where that is asked."""
        return self.dials(situation) or self.picture(situation, "asked")

    def dials(self, situation):
        if (self.figures / f"{situation['name']}-asked.svg").exists():
            return ""
        return self.picture(situation, "left") + self.picture(situation, "right")

    def picture(self, situation, kind):
        path = self.figures / f"{situation['name']}-{kind}.svg"
        if not path.exists():
            raise SourceError(self.path, 0, f"there is no drawing {path.name}")
        return f'<img class="{kind}" src="{path.as_uri()}">'


def task(title, situation):
    given = "".join(f"<p class='task'>{html.escape(situation[each])}</p>"
                    for each in ("task", "known") if situation[each])
    return f"<p class='exercise'>{html.escape(title)}</p>{given}"


def questions_of(situation):
    return "".join(f"<p class='prompt'>{html.escape(row['prompt'])}</p>{room_for(row)}"
                   for row in situation["rows"])


def room_for(row):
    """Boxes to tick for a few offers, a line to write on for a number or a text of a long list."""
    boxes = row["offers"] if len(row["offers"]) <= MOST_BOXES else []
    parts = [f'<span class="offer"><span class="box"></span>{html.escape(offer)}</span>'
             for offer in boxes]
    parts += [f'<span class="offer"><span class="line"></span> {html.escape(unit)}</span>'
              for unit in row["units"]]
    return f'<p class="offers">{" ".join(parts) or "<span class=line></span>"}</p>'


def table_of(situation):
    rows = "".join(f"<tr><td>{html.escape(row['prompt'])}</td>"
                   f"<td class='answer'>{html.escape(row['solution'])}</td></tr>"
                   for row in situation["rows"])
    return f"<table>{rows}</table>"


def answers_of(situation):
    rows = "".join(f"<p>{html.escape(row['prompt'])} <b>{html.escape(row['solution'])}</b></p>"
                   for row in situation["rows"])
    return f'<div class="answers">{rows}</div>'
