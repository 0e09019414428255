#!/usr/bin/env python3
"""Takes pictures of all screens with the sample league, a part of its season played: none may have cut text, controls
over each other, controls that the keyboard doesn't reach, or an ALT key for two.

usage: screens_test.py REPLAY_PROGRAM SCREENS_PROGRAM
"""
import pathlib
import struct
import subprocess
import sys
import tempfile


def run(*words):
    return subprocess.run([str(w) for w in words], capture_output=True, text=True)


def size_of(picture):
    return struct.unpack(">II", picture.read_bytes()[16:24])


def main():
    replay, screens = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="tarvane-screens-") as place:
        root = pathlib.Path(place)
        data, league, shots = root / "data", root / "league", root / "shots"
        for words in [("sample-league", league, "--seed", "3"),
                      ("new-season", "Pictures", "--source", league, "--year", "1975", "--seed", "3"),
                      ("make-schedule", "Pictures", "--games", "154"),
                      ("play-season", "Pictures", "--seed", "3", "--games", "300", "--box", "html")]:
            done = run(replay, "--data-dir", data, *words)
            if done.returncode != 0:
                print(done.stderr)
                return 1
        done = run(screens, shots, "--data-dir", data, "--lahman", league)
        print("\n".join(line for line in done.stderr.splitlines() if "plugin" not in line))
        faults = done.returncode != 0
        pictures = sorted(shots.glob("*-1024x768.png"))
        for picture in pictures:
            width, height = size_of(picture)
            if width > 1024 or height > 768:
                print(f"{picture.name} needs {width}x{height}")
                faults = True
        print(f"{len(pictures)} screens")
        return 1 if faults or len(pictures) < 30 else 0


if __name__ == "__main__":
    sys.exit(main())
