"""What is wrong with the includes of a tree: arrows up the rooms of tools/rooms, circles, headers of Qt and of Windows in
the wrong room, logic that reaches the control tree."""
import os
import re
import sys
from fnmatch import fnmatchcase
from importlib.machinery import SourceFileLoader
from importlib.util import module_from_spec, spec_from_loader

INCLUDE = re.compile(r'^[ \t]*#[ \t]*(?:include|import)[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>)', re.M)
SOURCES = (".cpp", ".h", ".inc", ".rc", ".rc.in", ".idl")
FOREIGN = {
    "qt": re.compile(r"^(Q[A-Z]\w*|Qt\w*/.+|q[a-z]+\.h|qcustomplot\.h)$"),
    "windows": re.compile(r"^(win\w*|ole\w*|com(m|b)\w*|shell\w*|shl\w*|shobj\w*|objbase|objidl|unknwn|ocidl|initguid|oaidl"
                          r"|uxtheme|imm|dispex|uiautomation\w*|msaa\w*|tchar|Tarnwise_DEA)\.h$", re.I),
}


def module_of(path):
    sys.dont_write_bytecode = True
    module = module_from_spec(spec_from_loader("rooms", SourceFileLoader("rooms", path)))
    module.__spec__.loader.exec_module(module)
    return module


def tree_at(root):
    """The text of each file, by the name it is included by."""
    texts = {}
    for top in ("src", "include"):
        for folder, _, files in os.walk(os.path.join(root, top)):
            for name in files:
                path = os.path.join(folder, name)
                if name.endswith(SOURCES):
                    with open(path, encoding="utf-8") as file:
                        texts[os.path.relpath(path, os.path.join(root, top))] = file.read()
    return texts


def includes_of(path, texts):
    """(the files of the tree, the headers of others) that a file includes, in its order."""
    own, others = [], []
    for quoted, angled in INCLUDE.findall(texts[path]):
        beside = os.path.normpath(os.path.join(os.path.dirname(path), quoted or angled))
        found = next((name for name in (quoted or angled, beside) if name in texts), None)
        if found:
            own.append(found)
        else:
            others.append(quoted or angled)
    return own, others


def room_of(path, layers):
    """The row of the table that a file stands in: its own, or that of the nearest folder."""
    while path and path not in layers:
        path = os.path.dirname(path)
    return path or None


def words_of(path, layers, words):
    said = set(words.get(room_of(path, layers), ()))
    stem = os.path.splitext(path)[0]
    return said.union(*(more for name, more in words.items() if name not in layers and fnmatchcase(stem, name)))


def arrows_up(path, own, layers):
    room = room_of(path, layers)
    if room is None:
        return ["%s: stands in no room" % path]
    found = []
    for other in own:
        there = room_of(other, layers)
        if there is not None and there != room and layers[there] >= layers[room]:
            found.append("%s: %s is not below %s" % (path, other, room))
    return found


def foreign(path, others, said):
    return ["%s: <%s> is no header for this room" % (path, header) for header in others
            for whose, names in FOREIGN.items() if names.match(header) and whose not in said]


def circle_from(start, own):
    """The files of a circle through a file; none where there is no such circle."""
    way, seen = [(start, iter(own[start]))], set()
    while way:
        following = next(way[-1][1], None)
        if following == start:
            return [path for path, _ in way]
        if following is None:
            way.pop()
        elif following not in seen:
            seen.add(following)
            way.append((following, iter(own[following])))
    return []


def reached(start, own):
    """All that a file includes, whatever the way, with the way to it."""
    ways, waiting = {}, [(start, [start])]
    while waiting:
        path, way = waiting.pop()
        for other in own[path]:
            if other not in ways:
                ways[other] = way + [other]
                waiting.append((other, ways[other]))
    return ways


def findings(texts, layers, words):
    """One line for each thing that is wrong."""
    read = {path: includes_of(path, texts) for path in sorted(texts)}
    own = {path: both[0] for path, both in read.items()}
    found, circles = [], set()
    for path, (inside, outside) in read.items():
        said = words_of(path, layers, words)
        found += arrows_up(path, inside, layers) + foreign(path, outside, said)
        circle = circle_from(path, own)
        if circle and frozenset(circle) not in circles:
            circles.add(frozenset(circle))
            found.append("%s: a circle: %s" % (path, " -> ".join(circle + [path])))
        if "logic" in said:
            found += ["%s: logic reaches the control tree: %s" % (path, " -> ".join(way))
                      for other, way in reached(path, own).items() if "tree" in words_of(other, layers, words)]
    return found
