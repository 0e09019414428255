#!/usr/bin/env python3
"""Kills a season's run at random moments, takes it up again, and checks that no game is lost, double or half posted.

usage: crash_test.py PROGRAM [--kills N] [--games N] [--seed N] [--keep FOLDER]

PROGRAM is tarvane-replay. A fictional league plays its schedule twice: once in one go, once under fire. Both must end
with the same rows.
"""

import argparse
import random
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SEASON = "Crash"
PLAY_SEED = "7"


def run(program, data, *words):
    return subprocess.run([program, "--data-dir", str(data), *words], check=True, capture_output=True, text=True).stdout


def season_file(data):
    return data / "Data08" / SEASON / f"Korv {SEASON}.mdb"


def faults(program, data):
    """The games played, and what doesn't add up; nothing when all does."""
    found = []
    with sqlite3.connect(season_file(data)) as db:
        number = lambda sql: db.execute(sql).fetchone()[0]
        if number("PRAGMA integrity_check") != "ok":
            found.append("the file is damaged")
        played = number("SELECT count(*) FROM Schedule WHERE Played <> 0")
        for sql in ("SELECT coalesce(sum(W), 0) FROM KorvTeams",
                    "SELECT count(DISTINCT GameID) FROM KorvBatterResultsLog",
                    "SELECT count(*) / 2 FROM KorvPitcherResultsLog WHERE GS = 1"):
            if number(sql) != played:
                found.append(f"{played} games, but {number(sql)} by {sql}")
    db.close()
    books = subprocess.run([program, "--data-dir", str(data), "audit", SEASON], capture_output=True, text=True)
    if books.returncode != 0:
        found.append(books.stdout + books.stderr)
    return played, found


def main():
    words = argparse.ArgumentParser()
    words.add_argument("program")
    words.add_argument("--kills", type=int, default=20)
    words.add_argument("--games", type=int, default=60, help="of each team")
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("--keep", help="work in this folder and leave it")
    options = words.parse_args()
    chance = random.Random(options.seed)
    folder = Path(options.keep or tempfile.mkdtemp(prefix="tarvane-crash-"))
    try:
        return fire(Path(options.program).resolve(), folder, options, chance)
    finally:
        if not options.keep:
            shutil.rmtree(folder, ignore_errors=True)


def fire(program, folder, options, chance):
    whole, torn = folder / "whole", folder / "torn"
    run(program, whole, "sample-league", str(folder / "league"), "--seed", "11")
    run(program, whole, "new-season", SEASON, "--source", str(folder / "league"), "--year", "1975", "--seed", "11")
    run(program, whole, "make-schedule", SEASON, "--games", str(options.games))
    shutil.copytree(whole, torn)
    start = time.monotonic()
    run(program, whole, "play-season", SEASON, "--seed", PLAY_SEED)
    length = time.monotonic() - start
    total, found = faults(program, whole)
    if found:
        print("the run without kills doesn't add up:", *found, sep="\n  ")
        return 1

    command = [str(program), "--data-dir", str(torn), "play-season", SEASON, "--seed", PLAY_SEED]
    kills = hits = 0
    played = 0
    while kills < options.kills and played < total:
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
        # Half of the length stays for the run at the end; loading takes its share of each.
        time.sleep(chance.uniform(0.02, 0.3 + length / (2 * options.kills)))
        process.send_signal(signal.SIGKILL)
        process.wait()
        kills += 1
        before = played
        played, found = faults(program, torn)
        hits += played > before
        if found or played < before:
            print(f"after kill {kills}, {played} games:", *found, sep="\n  ")
            return 1
    run(program, torn, "play-season", SEASON, "--seed", PLAY_SEED)
    played, found = faults(program, torn)
    same = run(program, whole, "hash", SEASON) == run(program, torn, "hash", SEASON)
    print(f"{kills} kills, {hits} of them after games had been posted; {played} of {total} games at the end; "
          f"{'the same season' if same else 'ANOTHER SEASON'} as without kills")
    for fault in found:
        print(" ", fault)
    if hits == 0:
        print("no kill met a game: give more --games")
    return 0 if same and not found and played == total and hits > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
