"""Checks a USDZ package, and that it holds what a captured room's JSON says.

    python check_usdz.py scan.usdz [room.json]

Needs usd-core from PyPI. Prints a line per finding. Exit code: 0 nothing found, 1 findings, 77 no usd-core.
"""

import collections
import json
import struct
import sys
import zlib

try:
    from pxr import Gf, Tf, Usd, UsdGeom, UsdShade, UsdValidation
except ImportError:
    Usd = None

NO_USD_CORE = 77
LAYERS = (b".usda", b".usdc", b".usd")
MEDIA = (b".png", b".jpg", b".jpeg", b".exr", b".avif", b".m4a", b".mp3", b".wav")
LISTS = ("walls", "doors", "windows", "floors", "objects")  # openings have no mesh


def check_container(data):
    """Yields what is wrong with the zip archive, read from its own records."""
    if len(data) < 22 or data[-22:-18] != b"PK\5\6":
        yield "no end record at the very end"
        return
    disks, entries_here, entries, size, start, comment = struct.unpack("<IHHIIH", data[-18:])
    if disks or comment or entries_here != entries or start + size + 22 != len(data):
        yield "the end record does not describe the archive"
    at, expected, names = start, 0, set()
    for index in range(entries):
        if data[at : at + 4] != b"PK\1\2":
            yield f"entry {index}: no central header"
            return
        made_by, *common = struct.unpack("<H5H3I2H", data[at + 4 : at + 32])
        needed, flags, method, _, _, crc, packed, size, name_size, extra_size = common
        comment, _, _, _, offset = struct.unpack("<HHHII", data[at + 32 : at + 46])
        name = data[at + 46 : at + 46 + name_size]
        extra = data[at + 46 + name_size : at + 46 + name_size + extra_size]
        at += 46 + name_size + extra_size + comment
        yield from check_entry(index, name, names, flags, method, extra)
        local = data[offset : offset + 30 + name_size + extra_size]
        if local[:4] != b"PK\3\4" or local[4:30] != struct.pack("<5H3I2H", *common):
            yield f"{name!r}: local and central header differ"
        if local[30:] != name + extra:
            yield f"{name!r}: local and central name or padding differ"
        if offset != expected:
            yield f"{name!r}: a gap before the entry"
        content = offset + len(local)
        expected = content + packed
        if content % 64:
            yield f"{name!r}: the data starts at {content}, no multiple of 64"
        if packed != size or 0xFFFFFFFF in (size, offset):
            yield f"{name!r}: stored size {packed}, size {size}"
        if zlib.crc32(data[content:expected]) != crc:
            yield f"{name!r}: wrong CRC"
    if expected != start or at != len(data) - 22:
        yield "bytes that belong to no entry"


def check_entry(index, name, names, flags, method, extra):
    if flags & ~0x0800 or method:
        yield f"{name!r}: method {method}, flags {flags}"
    if name.startswith(b"/") or b"\\" in name or b".." in name.split(b"/") or name in names:
        yield f"{name!r}: unsafe or repeated name"
    names.add(name)
    if not name.endswith(LAYERS + MEDIA if index else LAYERS):
        yield f"{name!r}: not a type of file for this place"
    while len(extra) >= 4:
        extra = extra[4 + struct.unpack("<H", extra[2:4])[0] :]
    if extra:
        yield f"{name!r}: ill-formed extra field"


def check_stage(stage):
    """Yields what OpenUSD's own validators find."""
    registry = UsdValidation.ValidationRegistry()
    context = UsdValidation.ValidationContext(registry.GetOrLoadAllValidators())
    for error in context.Validate(stage):
        yield f"{error.GetName()}: {error.GetMessage()}"
    if UsdGeom.GetStageUpAxis(stage) != UsdGeom.Tokens.y or UsdGeom.GetStageMetersPerUnit(stage) != 1:
        yield "not in metres with Y up"


def check_mesh(prim):
    """Yields what is wrong with one mesh; no validator looks at any of this."""
    mesh = UsdGeom.Mesh(prim)
    points, normals = mesh.GetPointsAttr().Get(), mesh.GetNormalsAttr().Get()
    counts, indices = mesh.GetFaceVertexCountsAttr().Get(), mesh.GetFaceVertexIndicesAttr().Get()
    valid, why = UsdGeom.Mesh.ValidateTopology(indices, counts, len(points))
    if not valid or not points:
        yield f"topology: {why}"
        return
    if any(value - value != 0 for point in points for value in point):
        yield "a point that is not finite"
    if mesh.GetExtentAttr().Get() != UsdGeom.PointBased.ComputeExtent(points):
        yield "the extent is not that of the points"
    if mesh.GetSubdivisionSchemeAttr().Get() != "none":
        yield "normals of a subdivided mesh are ignored"
    if mesh.GetNormalsInterpolation() != "vertex" or len(normals) != len(points):
        yield "not one normal per point"
        return
    if not UsdShade.MaterialBindingAPI(prim).ComputeBoundMaterial()[0]:
        yield "no material"
    yield from check_solid(points, normals, counts, indices)


def check_solid(points, normals, counts, indices):
    edges, volume, first = collections.Counter(), 0, 0
    for count in counts:
        face = indices[first : first + count]
        first += count
        corners = [Gf.Vec3d(points[i]) for i in face]
        edges.update((tuple(a), tuple(b)) for a, b in zip(corners, corners[1:] + corners[:1]))
        across = sum((Gf.Cross(a, b) for a, b in zip(corners, corners[1:] + corners[:1])), Gf.Vec3d())
        volume += Gf.Dot(corners[0], across)
        if any(abs(Gf.Dot(Gf.Vec3d(normals[i]), across.GetNormalized()) - 1) > 1e-4 for i in face):
            yield "a normal that is not its face's, counter-clockwise from outside"
    if volume <= 0:
        yield "inside out, or flat"
    if open_edges(edges):
        yield "not closed"


def open_edges(edges):
    """How many edges do not belong to two faces, one in each direction."""
    return sum(count != 1 or edges.get((end, start)) != 1 for (start, end), count in edges.items())


def check_room(meshes, room):
    """Yields where the meshes are not the elements of the room."""
    elements = {item["identifier"].upper(): item for key in LISTS for item in room.get(key) or []}
    expected = sum(len(room.get(key) or []) for key in LISTS)
    if len(meshes) != expected:
        yield f"{len(meshes)} meshes for {expected} elements"
    for prim in meshes:
        element = elements.pop(prim.GetCustomData().get("UUID"), None)
        if element is None:
            yield f"{prim.GetPath()}: of no element, or of one that has a mesh already"
            continue
        category = next(iter(element["category"]))
        if prim.GetCustomData()["Category"].split("(")[0] != category[:1].upper() + category[1:]:
            yield f"{prim.GetPath()}: its category should be {category}"
        matrix = UsdGeom.Xformable(prim).ComputeLocalToWorldTransform(Usd.TimeCode.Default())
        numbers = [matrix[row][column] for row in range(4) for column in range(4)]
        if any(abs(a - b) > 1e-6 * max(1, abs(b)) for a, b in zip(numbers, element["transform"])):
            yield f"{prim.GetPath()}: not where the room has it"
    yield from (f"no mesh for {uuid}" for uuid in elements)


def check(package, room_json=None):
    """Yields one line per finding."""
    with open(package, "rb") as file:
        yield from check_container(file.read())
    try:
        stage = Usd.Stage.Open(package)
    except Tf.ErrorException as error:
        yield f"does not open: {error}"
        return
    yield from check_stage(stage)
    meshes = [prim for prim in stage.Traverse() if prim.IsA(UsdGeom.Mesh)]
    for prim in meshes:
        yield from (f"{prim.GetPath()}: {finding}" for finding in check_mesh(prim))
    if room_json:
        with open(room_json, encoding="utf-8") as file:
            yield from check_room(meshes, json.load(file))


def main(arguments):
    if Usd is None:
        print("skipped: this Python has no usd-core (pip install usd-core)")
        return NO_USD_CORE
    if len(arguments) not in (1, 2):
        sys.exit(__doc__)
    findings = list(check(*arguments))
    for finding in findings:
        print(" ".join(str(finding).split()))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
