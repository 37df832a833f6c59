"""The targets that the CMakeLists of src/ declare, and which folder belongs to which."""

import os
import re

_CALL = re.compile(r"\bkestrane_(library|program)\s*\(([^)]*)\)", re.DOTALL)
_KEYWORDS = {"SOURCES", "PUBLIC", "PRIVATE", "LINK"}


class Target:
    def __init__(self, kind, name, file, line, lists):
        self.kind = kind
        self.name = name
        self.file = file
        self.line = line
        self.folder = os.path.dirname(file)
        self.sources = [os.path.normpath(os.path.join(self.folder, s)) for s in lists["SOURCES"]]
        self.public = lists["PUBLIC"]
        self.private = lists["PRIVATE"] + lists["LINK"]

    @property
    def dependencies(self):
        return self.public + self.private


def _without_comments(text):
    return re.sub(r"#[^\n]*", "", text)


def _parse(match):
    words = match.group(2).split()
    lists = {keyword: [] for keyword in _KEYWORDS}
    current = None
    for word in words[1:]:
        if word in _KEYWORDS:
            current = word
        elif current:
            lists[current].append(word)
    return words[0], lists


def declared(tree):
    """All targets, in the order of their files."""
    found = []
    for file in tree.named("CMakeLists.txt"):
        if not file.startswith("src/"):
            continue
        text = _without_comments(tree.text(file))
        for match in _CALL.finditer(text):
            name, lists = _parse(match)
            found.append(Target(match.group(1), name, file, text.count("\n", 0, match.start()) + 1, lists))
    return found


def owners_of(path, libraries):
    """The libraries that a path below src/ may belong to: the one that names its .cpp, else all of the nearest folder above."""
    source = os.path.splitext(path)[0] + ".cpp"
    named = [library for library in libraries if source in library.sources]
    if named:
        return named
    folder = os.path.dirname(path)
    while folder and folder != "src":
        here = [library for library in libraries if library.folder == folder]
        if here:
            return here
        folder = os.path.dirname(folder)
    return []


def closure(names, by_name):
    """The named targets and all that comes with them through PUBLIC dependencies."""
    reached, waiting = set(), list(names)
    while waiting:
        name = waiting.pop()
        if name in reached:
            continue
        reached.add(name)
        if name in by_name:
            waiting.extend(by_name[name].public)
    return reached
