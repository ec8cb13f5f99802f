"""Writes the USDZ of every room, and of the structure of all rooms of a folder, with the given program and
checks each.

    python check_rooms.py WRITE_USDZ ROOM_OR_FOLDER...

Exit codes as of check_usdz.py.
"""

import pathlib
import plistlib
import subprocess
import sys
import tempfile

import check_usdz


def rooms_of(path):
    return sorted(path.glob("*.json")) if path.is_dir() else [path] if path.exists() else []


def check_room(program, room, folder):
    """Yields one line per finding."""
    package = f"{folder}/{room.stem}.usdz"
    subprocess.run([program, room, package], check=True)
    yield from check_usdz.check(package, room)


def check_structure(program, rooms, folder):
    """Yields one line per finding."""
    package = f"{folder}/structure.usdz"
    subprocess.run([program, *rooms, package], check=True)
    yield from check_usdz.check(package, f"{folder}/structure.json")
    with open(f"{folder}/structure.plist", "rb") as file:
        names = plistlib.load(file)
    own = names.pop("vantorel")
    stage = check_usdz.Usd.Stage.Open(package)
    meshes = [prim for prim in stage.Traverse() if prim.IsA(check_usdz.UsdGeom.Mesh)]
    if names != {prim.GetName(): prim.GetCustomData()["UUID"] for prim in meshes} or len(names) != len(meshes):
        yield "the property list does not name the elements of the meshes"
    if own["formatVersion"] != 1 or len(own["rooms"]) != len(rooms):
        yield "the property list does not name the rooms"


def main(program, *places):
    if check_usdz.Usd is None:
        return check_usdz.main([])
    checked, found = 0, 0
    with tempfile.TemporaryDirectory() as folder:
        for place in map(pathlib.Path, places):
            rooms = rooms_of(place)
            findings = [(room.name, line) for room in rooms for line in check_room(program, room, folder)]
            if len(rooms) > 1:
                findings += [(place.name, line) for line in check_structure(program, rooms, folder)]
            for name, line in findings:
                print(f"{name}: {line}")
            checked += len(rooms)
            found += len(findings)
    print(f"{checked} rooms, {found} findings")
    return 1 if found or not checked else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
