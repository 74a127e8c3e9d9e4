#!/usr/bin/env bash
# usage: snippets_test.sh [--update]
# Each block of docs/com-guide.md that follows a line <!-- FILE REGION --> is that region of the file, letter by letter:
# what stands between its lines "region REGION" and "end region". --update writes the blocks anew.
set -euo pipefail
cd "$(dirname "$0")/../.."
exec python3 - "${1-}" <<'EOF'
import re
import sys

GUIDE = "docs/com-guide.md"
BLOCK = re.compile(r"<!-- (\S+) (\S+) -->\n```(\w+)\n(.*?)```\n", re.S)


def region(path, name):
    with open(path, encoding="utf-8") as file:
        found = re.findall(r"^\S+ region %s\n(.*?)^\S+ end region\n" % re.escape(name), file.read(), re.S | re.M)
    if len(found) != 1:
        sys.exit("%s has %d regions %s" % (path, len(found), name))
    return found[0]


with open(GUIDE, encoding="utf-8") as file:
    guide = file.read()
if sys.argv[1] == "--update":
    def renew(block):
        path, name, language = block.group(1, 2, 3)
        return "<!-- %s %s -->\n```%s\n%s```\n" % (path, name, language, region(path, name))

    with open(GUIDE, "w", encoding="utf-8") as file:
        file.write(BLOCK.sub(renew, guide))
    sys.exit()

blocks = BLOCK.findall(guide)
if len(blocks) != guide.count("<!--") or len(blocks) < 7:
    sys.exit("%s: only %d blocks are in order" % (GUIDE, len(blocks)))
other = ["%s %s" % (path, name) for path, name, _, text in blocks if text != region(path, name)]
if other:
    sys.exit("%s: other than the file: %s" % (GUIDE, ", ".join(other)))
print("%s: %d blocks are as in their files" % (GUIDE, len(blocks)))
EOF
