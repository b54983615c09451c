# SPDX-License-Identifier: MIT
"""Reading of scenario files."""

import json
import re

# A string, a translation expression around one, or a comment.
_STRING = r'"(?:\\.|[^"\\])*"'
_TOKEN = re.compile(rf"qsTr\(\s*({_STRING})[^)]*\)|({_STRING})|//[^\n]*|/\*.*?\*/", re.DOTALL)


def read(path):
    """The steps of the file in the order in which they are played, as dictionaries.

    Texts to be translated come as they stand in the file. OSError and ValueError
    say why it cannot be read.
    """
    with open(path, encoding="utf-8") as file:
        text = file.read()
    text = _TOKEN.sub(lambda token: token[1] or token[2] or "", text).strip()
    text = text.removeprefix("var scenario =").removesuffix(";")
    return list(_flat(json.loads(text)))


def _flat(steps):
    for step in steps:
        if "group" in step:
            inner = list(_flat(step["group"]))
            if inner and step.get("label"):  # a group's label stands for its first step
                inner[0].setdefault("label", step["label"])
            yield from inner
        elif step:
            yield step
