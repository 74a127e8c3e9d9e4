#!/usr/bin/env python3
"""usage: rooms_test.py tree | rules
The includes of the code are as tools/rooms has them (tree); and the reading of includes finds what it has to (rules)."""
import fnmatch
import os
import sys
import unittest

import includes

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
LAYERS = {"tarnwise/Api.h": 0, "ground": 1, "tree": 2, "tree/glass": 3, "left": 3, "right": 3, "roof": 4}
WORDS = {"ground": {"logic"}, "tree": {"tree"}, "tree/glass": {"tree", "qt"}, "left/Sums": {"logic"}, "roof": {"windows"},
         "right/Glass*": {"qt"}}


def found_in(files):
    """What is wrong with a small house that is in order but for these files."""
    texts = {"tarnwise/Api.h": "", "ground/Text.h": "#include <tarnwise/Api.h>\n#include <string>\n",
             "tree/Box.h": '#include "ground/Text.h"\n', "tree/glass/Pane.cpp": '#include "tree/Box.h"\n#include <QWidget>\n',
             "left/Sums.h": '#include "ground/Text.h"\n', "left/Form.cpp": '#include "tree/Box.h"\n#include "left/Sums.h"\n',
             "roof/main.cpp": '#include "left/Sums.h"\n#include <windows.h>\n'}
    texts.update(files)
    return includes.findings(texts, LAYERS, WORDS)


class Rules(unittest.TestCase):
    def found(self, path, text, others=None):
        return found_in({path: text, **(others or {})})

    def test_AHouseInOrderHasNothing(self):
        self.assertEqual(found_in({}), [])

    def test_AnArrowUpIsFound(self):
        self.assertEqual(self.found("ground/Text.cpp", '#include "left/Form.h"\n', {"left/Form.h": ""}),
                         ["ground/Text.cpp: left/Form.h is not below ground"])

    def test_AnArrowToARoomOfTheSameLayerIsFound(self):
        self.assertEqual(self.found("right/Form.cpp", '#include "left/Sums.h"\n'),
                         ["right/Form.cpp: left/Sums.h is not below right"])

    def test_AnArrowFromARoomIntoOneInsideItIsFound(self):
        self.assertEqual(self.found("tree/Box.cpp", '#include "tree/glass/Pane.h"\n', {"tree/glass/Pane.h": ""}),
                         ["tree/Box.cpp: tree/glass/Pane.h is not below tree"])

    def test_APublicHeaderHasALayerToo(self):
        self.assertEqual(self.found("tarnwise/Api.h", '  #  include "ground/Number.h"\n', {"ground/Number.h": ""}),
                         ["tarnwise/Api.h: ground/Number.h is not below tarnwise/Api.h"])

    def test_ANameWithoutItsFolderIsThatOfAFileBeside(self):
        self.assertEqual(self.found("ground/deep/Text.cpp", '#include "../../left/Sums.h"\n'),
                         ["ground/deep/Text.cpp: left/Sums.h is not below ground"])

    def test_AFileInNoRoomIsFound(self):
        self.assertEqual(self.found("cellar/Wine.cpp", ""), ["cellar/Wine.cpp: stands in no room"])

    def test_ACircleIsFoundOnce(self):
        files = {"left/A.h": '#include "left/B.h"\n', "left/B.h": '#include "left/C.h"\n', "left/C.h": '#include "left/A.h"\n'}
        self.assertEqual(found_in(files), ["left/A.h: a circle: left/A.h -> left/B.h -> left/C.h -> left/A.h"])

    def test_AFileThatIncludesItselfIsACircle(self):
        self.assertEqual(self.found("left/A.h", '#include "left/A.h"\n'), ["left/A.h: a circle: left/A.h -> left/A.h"])

    def test_QtIsFoundWhereItHasNoRoom(self):
        for header in ("QWidget", "QtGui/QPainter", "qapplication.h"):
            self.assertEqual(self.found("tree/Paint.cpp", "#include <%s>\n" % header),
                             ["tree/Paint.cpp: <%s> is no header for this room" % header])

    def test_WindowsHeadersAreFoundWhereTheyHaveNoRoom(self):
        for header in ("windows.h", "Windows.h", "windowsx.h", "oleauto.h", "commctrl.h", "combaseapi.h", "shellapi.h"):
            self.assertEqual(self.found("tree/glass/Own.cpp", "#include <%s>\n" % header),
                             ["tree/glass/Own.cpp: <%s> is no header for this room" % header])

    def test_AFileOfItsOwnMayHaveWhatItsRoomMayNot(self):
        self.assertEqual(self.found("right/GlassPane.cpp", "#include <QWidget>\n"), [])
        self.assertEqual(self.found("right/Pane.cpp", "#include <QWidget>\n"),
                         ["right/Pane.cpp: <QWidget> is no header for this room"])

    def test_OtherHeadersAreForAll(self):
        self.assertEqual(self.found("left/A.cpp", "#include <queue>\n#include <complex>\n#include <compare>\n"), [])

    def test_LogicThatIncludesTheControlTreeIsFound(self):
        self.assertEqual(self.found("left/Sums.cpp", '#include "tree/Box.h"\n'),
                         ["left/Sums.cpp: logic reaches the control tree: left/Sums.cpp -> tree/Box.h"])

    def test_LogicThatReachesTheControlTreeThroughAnotherFileIsFound(self):
        self.assertEqual(self.found("left/Sums.cpp", '#include "left/More.h"\n', {"left/More.h": '#include "tree/Box.h"\n'}),
                         ["left/Sums.cpp: logic reaches the control tree: left/Sums.cpp -> left/More.h -> tree/Box.h"])

    def test_AnIncludeThatIsCommentedOutIsNone(self):
        self.assertEqual(self.found("ground/A.cpp", '// #include "left/Sums.h"\n'), [])


class Tree(unittest.TestCase):
    def test_EveryIncludePointsDown(self):
        rooms = includes.module_of(os.path.join(ROOT, "tools", "rooms"))
        texts = includes.tree_at(ROOT)
        self.assertGreater(len(texts), 200)  # it has found the code
        found = includes.findings(texts, rooms.layers(), rooms.words())
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def test_EveryFileOfTheTableIsThere(self):
        rooms = includes.module_of(os.path.join(ROOT, "tools", "rooms"))
        stems = {os.path.splitext(path)[0] for path in includes.tree_at(ROOT)}
        self.assertEqual([row[0] for row in rooms.rows(rooms.FILES) if not fnmatch.filter(stems, row[0])], [])


if __name__ == "__main__":
    unittest.main(argv=["rooms_test", {"tree": "Tree", "rules": "Rules"}[sys.argv[1]]])
