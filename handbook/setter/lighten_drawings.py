"""Makes drawings light: lines of one pen become one path, and pictures that many drawings hold become
files that the PDF needs only once."""

import base64
import hashlib
import pathlib
import re
import sys

EMBEDDED = re.compile(r'xlink:href="data:image/png;base64,([^"]*)"')
GROUP = re.compile(r"<g ([^>]*)>\n((?:<polyline [^>]*/>\n)+)</g>")
POINTS = re.compile(r'points="([^"]*)"')
GEOMETRY = re.compile(r'( (?:points|d|cx|cy|r|x|y)=")([^"]*)"')
FRACTION = re.compile(r"-?\d+\.\d+")
STANDS = ' transform="matrix(1,0,0,1,0,0)"'


def lighten(folder):
    """Rewrites the drawings of a folder; a picture in them is named after its content."""
    for path in sorted(folder.glob("*.svg")):
        text = path.read_text(encoding="utf-8")
        light = EMBEDDED.sub(lambda match: f'xlink:href="{kept(folder, match.group(1))}"', text)
        light = GROUP.sub(joined, light.replace(STANDS, ""))
        light = GEOMETRY.sub(
            lambda match: match.group(1) + FRACTION.sub(rounded, match.group(2)) + '"', light)
        if light != text:
            path.write_text(light, encoding="utf-8")


def kept(folder, base64_text):
    data = base64.b64decode(base64_text)
    name = hashlib.sha256(data).hexdigest()[:16] + ".png"
    (folder / name).write_bytes(data)
    return name


def joined(match):
    """Lines that shine through each other stay apart."""
    group, lines = match.groups()
    if 'stroke-opacity="1"' not in group:
        return match.group(0)
    way = " ".join("M" + " L".join(points.split()) for points in POINTS.findall(lines))
    return f'<g {group}>\n<path fill="none" d="{way}"/>\n</g>'


def rounded(match):
    """A tenth of a unit is a hundredth of a millimetre in the book."""
    return f"{float(match.group(0)):.1f}".removesuffix(".0")


if __name__ == "__main__":
    lighten(pathlib.Path(sys.argv[1]))
