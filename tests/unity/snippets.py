#!/usr/bin/env python3
"""snippets.py OUT FILE...: the C# blocks of documents as scripts in the folder OUT, to be compiled.

A block that declares a class stands for itself, in the namespace of its document and number; any other is the body of an
async method that has a session and a device. The compiler names places in the documents."""
import pathlib
import re
import sys

BODY = """using System.Threading.Tasks;
using UnityEngine;
using Vantorel;
using Vantorel.Simulation;
namespace Snippets.{name}
{{
internal static class Body
{{
internal static async Task Run(ScanSession session, SimulatedDevice device)
{{
await Task.CompletedTask;
#line {line} "{file}"
{text}
}}
}}
}}
"""
CLASS = """namespace Snippets.{name}
{{
#line {line} "{file}"
{text}
}}
"""

out = pathlib.Path(sys.argv[1])
out.mkdir(parents=True, exist_ok=True)
for old in out.glob("*.cs"):
    old.unlink()
for file in map(pathlib.Path, sys.argv[2:]):
    document = file.read_text()
    for number, block in enumerate(re.finditer(r"^```csharp\n(.*?)^```", document, re.M | re.S), 1):
        name = re.sub(r"\W", "", f"{file.parent.name} {file.stem}".title()) + str(number)
        template = CLASS if re.search(r"\bclass \w", block[1]) else BODY
        line = document[: block.start()].count("\n") + 2
        (out / f"{name}.cs").write_text(template.format(name=name, line=line, file=file, text=block[1]))
