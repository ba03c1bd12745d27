"""Writes the first block of one language of a Markdown page to a file."""
import pathlib
import re
import sys

page, language, output = sys.argv[1:]
text = pathlib.Path(page).read_text(encoding="utf-8")
block = re.search(rf"^```{language}\n(.*?)^```", text, re.DOTALL | re.MULTILINE)
if block is None:
    sys.exit(f"{page}: no {language} block")
pathlib.Path(output).write_text(block.group(1), encoding="utf-8")
