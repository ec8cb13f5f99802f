"""Writes the USDZ of every room with the given program and checks each.

    python check_rooms.py WRITE_USDZ ROOM_OR_FOLDER...

Exit codes as of check_usdz.py.
"""

import pathlib
import subprocess
import sys
import tempfile

import check_usdz


def rooms_of(path):
    return sorted(path.glob("*.json")) if path.is_dir() else [path] if path.exists() else []


def main(program, *places):
    if check_usdz.Usd is None:
        return check_usdz.main([])
    rooms = [room for place in places for room in rooms_of(pathlib.Path(place))]
    found = 0
    with tempfile.TemporaryDirectory() as folder:
        for room in rooms:
            package = f"{folder}/{room.stem}.usdz"
            subprocess.run([program, room, package], check=True)
            for finding in check_usdz.check(package, room):
                found += 1
                print(f"{room.name}: {finding}")
    print(f"{len(rooms)} rooms, {found} findings")
    return 1 if found or not rooms else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
