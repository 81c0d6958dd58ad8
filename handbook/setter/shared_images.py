"""Pictures that many drawings hold become files that the PDF needs only once."""

import base64
import hashlib
import pathlib
import re
import sys

EMBEDDED = re.compile(r'xlink:href="data:image/png;base64,([^"]*)"')


def share_images(folder):
    """Takes the pictures out of the drawings of a folder; each is named after its content."""
    for path in sorted(folder.glob("*.svg")):
        text = path.read_text(encoding="utf-8")
        shared = EMBEDDED.sub(lambda match: f'xlink:href="{kept(folder, match.group(1))}"', text)
        if shared != text:
            path.write_text(shared, encoding="utf-8")


def kept(folder, base64_text):
    data = base64.b64decode(base64_text)
    name = hashlib.sha256(data).hexdigest()[:16] + ".png"
    (folder / name).write_bytes(data)
    return name


if __name__ == "__main__":
    share_images(pathlib.Path(sys.argv[1]))
