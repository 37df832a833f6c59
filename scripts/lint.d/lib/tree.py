"""What every rule needs: the project's files, its findings, and the exceptions that carry a reason."""

import fnmatch
import os
import re
import subprocess
import sys

EXCEPTIONS = "scripts/lint.d/exceptions.txt"
SOURCE_ENDINGS = (".h", ".cpp")


class Tree:
    """The project's files: what git tracks or would track; every file where there is no git."""

    def __init__(self, root):
        self.root = root
        self.files = sorted(f for f in self._listed() if os.path.isfile(os.path.join(root, f)))

    def _listed(self):
        if os.path.exists(os.path.join(self.root, ".git")):
            command = ["git", "-c", "safe.directory=*", "-C", self.root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
            listed = subprocess.run(command, check=True, capture_output=True).stdout.decode()
            return set(listed.split("\0")) - {""}
        return self._walked()

    def _walked(self):
        for folder, folders, names in os.walk(self.root):
            folders[:] = [f for f in folders if f not in (".git", "build")]
            for name in names:
                yield os.path.relpath(os.path.join(folder, name), self.root)

    def below(self, *folders, endings=SOURCE_ENDINGS):
        """The files of these folders with one of the endings."""
        starts = tuple(folder + "/" for folder in folders)
        return [f for f in self.files if f.startswith(starts) and f.endswith(tuple(endings))]

    def named(self, name):
        return [f for f in self.files if os.path.basename(f) == name]

    def text(self, file):
        with open(os.path.join(self.root, file), encoding="utf-8", newline="") as opened:
            return opened.read()

    def bytes(self, file):
        with open(os.path.join(self.root, file), "rb") as opened:
            return opened.read()

    def lines(self, file):
        """(number from 1, line without its end) for each line."""
        return enumerate(self.text(file).splitlines(), start=1)

    def is_there(self, path):
        return os.path.exists(os.path.join(self.root, path))


class Findings:
    """What a rule has found. Files with an exception are passed over; an exception that serves for nothing is a finding too."""

    def __init__(self, tree, rule):
        self._tree = tree
        self._rule = rule
        self._found = []
        self._exceptions = dict(self._read_exceptions())
        self._used = set()

    def _read_exceptions(self):
        if not self._tree.is_there(EXCEPTIONS):
            return
        for number, line in self._tree.lines(EXCEPTIONS):
            words = line.split(None, 2)
            if not words or line.startswith("#") or words[0] != self._rule:
                continue
            if len(words) < 3:
                self._found.append((EXCEPTIONS, number, "an exception is: rule, path, reason"))
                continue
            yield words[1], number

    def add(self, file, line, why):
        excused = [pattern for pattern in self._exceptions if fnmatch.fnmatchcase(file, pattern)]
        self._used.update(excused)
        if not excused:
            self._found.append((file, line, why))

    def exit(self):
        """Prints what was found and leaves with 1 if there was anything, else 0."""
        for pattern, number in self._exceptions.items():
            if pattern not in self._used:
                self._found.append((EXCEPTIONS, number, f"{pattern} needs no exception from {self._rule} any more"))
        for file, line, why in sorted(self._found):
            print(f"{file}:{line}: {why}")
        sys.exit(1 if self._found else 0)


def start():
    """(tree, findings) of the rule that is running; its one argument is the root of the project."""
    if len(sys.argv) != 2:
        sys.exit(f"usage: {os.path.basename(sys.argv[0])} ROOT")
    tree = Tree(sys.argv[1])
    return tree, Findings(tree, os.path.basename(sys.argv[0]))


_CODE_PARTS = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)|(?P<raw>R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)")|(?P<text>"(?:\\.|[^"\\\n])*")|'(?:\\.|[^'\\\n])+'""",
    re.DOTALL,
)


def _blank(part):
    return re.sub(r"[^\n]", " ", part)


def without_comments(text):
    """The same text with comments turned into blanks; lines keep their numbers and columns."""
    return _CODE_PARTS.sub(lambda m: _blank(m.group()) if m.group("comment") else m.group(), text)


def code_alone(text):
    """The same text with comments and the insides of literals turned into blanks."""
    return _CODE_PARTS.sub(lambda m: _blank(m.group()), text)


def text_literals(text):
    """(line, content) of each text literal, comments left out; neighbours are not joined."""
    for match in _CODE_PARTS.finditer(text):
        if match.group("text") or match.group("raw"):
            yield text.count("\n", 0, match.start()) + 1, match.group()


def line_of(text, position):
    return text.count("\n", 0, position) + 1
