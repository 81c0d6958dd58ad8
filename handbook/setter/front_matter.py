"""The pages in front of the first section, and the index."""

import html

TITLE = {"de": "Handbuch der Funknavigation", "en": "Handbook of Radio Navigation"}
ABOUT = {
    "de": "VOR, ILS, NDB und DME lesen und fliegen. Jede Abbildung ist im Trainer geflogen.",
    "en": "Reading and flying VOR, ILS, NDB and DME. Every figure was flown in the trainer.",
}
CONTENTS = {"de": "Inhalt", "en": "Contents"}
WARNING = {
    "de": "Nur zur Ausbildung am Trainer, nicht zur Navigation. Alle Richtungen sind "
          "rechtweisend.",
    "en": "For training with the trainer only, not for navigation. All directions are true.",
}
HOW_TO = {"de": "Zu diesem Buch", "en": "About this book"}
HOW_TO_READ = {
    "de": (
        "Jeder Abschnitt steht auf der Seite, die das Menü „Buch“ des Trainers aufschlägt. "
        "Dazwischen stehen Tafeln mit Übungen: rechts drei Lagen mit ihren Anzeigen und Fragen, "
        "auf der Rückseite die geflogenen Lösungen. Wo nur eine Seite frei ist, stehen Fragen und "
        "Lösungen beisammen.",
        "Lesen Sie zuerst die Anzeigen, legen Sie sich auf eine Antwort fest und blättern Sie dann "
        "um. Auf der Karte beginnt die Spur dort, wo gefragt wurde. Alle Lagen lassen sich im "
        "Trainer nachfliegen: Sie stehen im Menü „Übungen“.",
    ),
    "en": (
        "Each section stands on the page at which the trainer’s menu “Book” opens it. Between "
        "the sections there are plates of exercises: on the right three situations with their "
        "dials and questions, overleaf the solutions as flown. Where only one page is free, "
        "questions and solutions stand together.",
        "Read the dials first, commit yourself to an answer, then turn the page. On the chart the "
        "track begins where the question was asked. Every situation "
        "can be flown in the trainer: they are in the menu “Exercises”.",
    ),
}


def cover(language, picture):
    return (f'<div class="cover"><h1>{TITLE[language]}</h1>'
            f'<p class="about">{ABOUT[language]}</p><img src="{picture.as_uri()}">'
            f'<p class="about">{WARNING[language]}</p></div>')


def about_plates(language):
    """What is behind the cover."""
    paragraphs = "".join(f"<p>{text}</p>" for text in HOW_TO_READ[language])
    return f'<div class="inside"><h2>{HOW_TO[language]}</h2>{paragraphs}</div>'


def contents(language, sections):
    rows = "".join(
        f'<p class="{"tips" if section.name.startswith("tips") else "section"}">'
        f'<span class="page">{section.page}</span>'
        f'<a href="#{section.name}">{html.escape(section.title)}</a></p>'
        for section in sections)
    return f'<h1>{CONTENTS[language]}</h1><div class="contents">{rows}</div>'


def index(sections, pages):
    """Each entry with the pages on which it is spoken of, by the alphabet; `pages` tells the page of
    each place."""
    entries = {}
    for section in sections:
        for entry, place in section.index:
            entries.setdefault(entry, {}).setdefault(pages[place], place)
    rows = "".join(
        f"<p>{html.escape(entry)} " + ", ".join(
            f'<a href="#{place}">{page}</a>' for page, place in sorted(entries[entry].items()))
        + "</p>"
        for entry in sorted(entries, key=sorting))
    return f'<div class="index">{rows}</div>'


def sorting(entry):
    """Umlauts stand with their vowels, as in a German index, and what is behind a comma directly
    behind its head."""
    return entry.casefold().translate(str.maketrans("äöüé", "aoue")).split(", ")
