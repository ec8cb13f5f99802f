"""Writes the USDZ of every room of a folder, measures its meshes against the room, and compares the table of the results
with the one in a page of the documentation.

    python shapes_table.py WRITE_USDZ FOLDER PAGE [--update]

Exit codes as of check_usdz.py.
"""

import collections
import json
import math
import pathlib
import subprocess
import sys
import tempfile

import check_usdz

WIDER = 0.16  # metres that a floor reaches beyond its corners
COLUMNS = (
    "room",
    "meshes",
    "triangles",
    "bytes",
    "validator findings",
    "open edges",
    "walls m²",
    "off by %",
    "floor m²",
    "off by %",
)


class Solid:
    """One mesh of a stage, as triangles."""

    def __init__(self, prim):
        mesh = check_usdz.UsdGeom.Mesh(prim)
        points, indices = mesh.GetPointsAttr().Get(), mesh.GetFaceVertexIndicesAttr().Get()
        corners = [tuple(map(float, points[i])) for i in indices]
        self.triangles = list(zip(corners[::3], corners[1::3], corners[2::3]))
        self.uuid = prim.GetCustomData()["UUID"]

    def open_edges(self):
        edges = collections.Counter()
        for a, b, c in self.triangles:
            edges.update(((a, b), (b, c), (c, a)))
        return check_usdz.open_edges(edges)

    def front_area(self, width=math.inf):
        """Of what lies in the plane z = 0, not beyond half the width: there posts begin."""
        front = (t for t in self.triangles if all(z == 0 and x <= width / 2 + 1e-4 for x, _, z in t))
        return sum(polygon_area(triangle) for triangle in front)


def polygon_area(corners):
    following = corners[1:] + corners[:1]
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(corners, following)) / 2


def widened_area(corners):
    """Of an outline with its sides moved outward and its corners mitred."""
    if polygon_area(corners) < 0:
        corners = corners[::-1]
    sides = [(b[0] - a[0], b[1] - a[1]) for a, b in zip(corners, corners[1:] + corners[:1])]
    area = polygon_area(corners) + WIDER * sum(math.hypot(*side) for side in sides)
    for (ux, uy), (vx, vy) in zip(sides, sides[1:] + sides[:1]):
        area += WIDER**2 * math.tan(math.atan2(ux * vy - uy * vx, ux * vx + uy * vy) / 2)
    return area


def walls(room, solids):
    """The front areas of all walls, and the largest share by which one is not its size less its openings."""
    cut = collections.Counter()
    for opening in room["doors"] + room["windows"] + room["openings"]:
        cut[opening["parentIdentifier"]] += opening["dimensions"][0] * opening["dimensions"][1]
    total, worst = 0, 0
    for wall in room["walls"]:
        width, height, _ = wall["dimensions"]
        expected = width * height - cut[wall["identifier"]]
        area = solids[wall["identifier"]].front_area(width)
        total += area
        worst = max(worst, abs(area / expected - 1))
    return total, worst


def floors(room, solids):
    total, worst = 0, 0
    for floor in room.get("floors") or []:
        area = solids[floor["identifier"]].front_area()
        total += area
        worst = max(worst, abs(area / widened_area(floor["polygonCorners"]) - 1))
    return total, worst


def row(program, path, folder):
    package = f"{folder}/{path.stem}.usdz"
    subprocess.run([program, path, package], check=True)
    with open(path, encoding="utf-8") as file:
        room = json.load(file)
    stage = check_usdz.Usd.Stage.Open(package)
    meshes = (prim for prim in stage.Traverse() if prim.IsA(check_usdz.UsdGeom.Mesh))
    solids = {solid.uuid: solid for solid in map(Solid, meshes)}
    return (
        path.stem,
        len(solids),
        sum(len(solid.triangles) for solid in solids.values()),
        pathlib.Path(package).stat().st_size,
        len(list(check_usdz.check(package, path))),
        sum(solid.open_edges() for solid in solids.values()),
        *walls(room, solids),
        *floors(room, solids),
    )


def text_of(rows):
    lines = ["| " + " | ".join(COLUMNS) + " |", "| --- |" + " --: |" * (len(COLUMNS) - 1)]
    for name, meshes, triangles, size, findings, edges, wall, wall_off, floor, floor_off in rows:
        cells = [name, meshes, f"{triangles:,}", f"{size:,}", findings, edges, f"{wall:.2f}", f"{100 * wall_off:.3f}"]
        cells += [f"{floor:.2f}", f"{100 * floor_off:.3f}"] if floor else ["–", "–"]
        lines.append("| " + " | ".join(map(str, cells)) + " |")
    return "\n".join(lines) + "\n"


def main(program, folder, page, update=None):
    rooms = sorted(pathlib.Path(folder).glob("*.json"))
    if check_usdz.Usd is None or not rooms:
        print("skipped: no usd-core, or no rooms")
        return check_usdz.NO_USD_CORE
    with tempfile.TemporaryDirectory() as work:
        rows = [row(program, room, work) for room in rooms]
    table, page = text_of(rows), pathlib.Path(page)
    text = page.read_text(encoding="utf-8")
    start = text.index("| room | meshes |")
    end = text.find("\n\n", start) + 1 or len(text)
    if update:
        page.write_text(text[:start] + table + text[end:], encoding="utf-8")
    elif text[start:end] != table:
        print(f"{page} is not true any more; with --update it tells:\n{table}")
        return 1
    bad = [r[0] for r in rows if r[4] or r[5] or r[7] > 0.001 or r[9] > 0.001]
    print(f"{len(rows)} rooms, {len(bad)} findings", *bad)
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
