#!/usr/bin/env bash
# The event procedures of the sample hosts take what the type library says: the same names in the same order, and in the
# macros the same types, by value or by reference.
set -euo pipefail
cd "$(dirname "$0")/../.."
exec python3 - <<'EOF'
import re
import sys

IDL = "src/com/Tarnwise_DEA.idl"
# An argument of the type library as the macros declare it.
MACRO = {"[in] short": "ByVal %s As Integer", "[in] VARIANT_BOOL": "ByVal %s As Boolean",
         "[in] BSTR": "ByVal %s As String", "[in, out] VARIANT*": "%s As Variant",
         "[in, out] SAFEARRAY(VARIANT)*": "%s() As Variant"}


def read(path):
    with open(path, encoding="utf-8") as file:
        return re.sub(r"\s*_\n\s*", " ", file.read()) if path.endswith(".cls") else file.read()


def arguments(text):
    return [re.fullmatch(r"(\[[^]]*\] \S+) (\w+)", " ".join(part.split())).groups()
            for part in re.split(r",\s*(?=\[)", text)]


source = read(IDL).split("dispinterface __TRN_DEA {")[1].split("};")[0]
events = {name: arguments(text) for name, text in re.findall(r"void (\w+)\((.*?)\);", source, re.S)}
if len(events) != 5:
    sys.exit("%s: %d events" % (IDL, len(events)))

wrong = []
checked = 0
for path in ["samples/com/hospitals.vbs", "samples/com/clsWizardEvents.cls"]:
    for name, text in re.findall(r"Sub Dea_(\w+)\((.*?)\)\n", read(path)):
        checked += 1
        form = {kind: "%s" for kind in MACRO} if path.endswith(".vbs") else MACRO
        wanted = ", ".join(form[kind] % argument for kind, argument in events.get(name, []))
        if text != wanted:
            wrong.append("%s: Dea_%s(%s), not (%s)" % (path, name, text, wanted))
if wrong or checked != 7:
    sys.exit("\n".join(wrong + ["%d procedures" % checked]))
print("%d event procedures are as in the type library" % checked)
EOF
