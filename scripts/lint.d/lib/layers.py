"""The order of folders that layers.txt lays down."""

import os

FILE = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "layers.txt")
QT_LEVELS = {"Core": {"Core", "Sql", "Xml"}, "Gui": {"Gui", "Svg", "PrintSupport"}, "Widgets": {"Widgets", "SvgWidgets", "Charts"}}
QT_ORDER = ["Core", "Gui", "Widgets"]


class Layer:
    def __init__(self, number, qt, together):
        self.number = number
        self.qt = qt
        self.together = together


def read():
    """{folder below src/: its Layer}"""
    layers = {}
    with open(FILE, encoding="utf-8") as lines:
        for number, line in enumerate(lines):
            words = line.split()
            if not words or line.startswith("#"):
                continue
            together = words[-1] == "together"
            for folder in words[1 : len(words) - together]:
                layers[folder] = Layer(number, words[0], together)
    return layers


def qt_level(module):
    """0, 1 or 2 of "Qt6::Gui" and the like; None for what is no Qt module or an unknown one."""
    name = module.removeprefix("Qt6::")
    for level, key in enumerate(QT_ORDER):
        if name in QT_LEVELS[key]:
            return level
    return None
