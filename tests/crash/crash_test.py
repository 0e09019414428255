#!/usr/bin/env python3
"""Kills a season's run at random moments, takes it up again, and checks that no game is lost, double or half posted.

usage: crash_test.py PROGRAM [--kills N] [--rounds N] [--seed N] [--keep FOLDER]

PROGRAM is tarvane-replay. A fictional league plays a round robin twice: once in one go, once under fire. Both must end
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
BATTING = ["AB", "H", "2B", "3B", "HR", "RBI", "SB", "CS", "BB", "SO", "HBP", "SH", "SF", "GIDP"]
PITCHING = ["Games", "GS", "CG", "SV", "IPOuts", "OppBB", "OppSO", "ER", "OppHR", "OppHBP"]


def run(program, data, *words):
    return subprocess.run([program, "--data-dir", str(data), *words], check=True, capture_output=True, text=True).stdout


def season_file(data):
    return data / "Data08" / SEASON / f"Korv {SEASON}.mdb"


def write_schedule(data, rounds):
    """Every team plays once a round, by the circle method; a round a day."""
    with sqlite3.connect(season_file(data)) as db:
        teams = [row[0] for row in db.execute("SELECT TeamIdx FROM KorvTeams ORDER BY TeamIdx")]
        for number in range(rounds):
            for pair in range(len(teams) // 2):
                sides = [teams[pair], teams[-1 - pair]]
                if number % 2:
                    sides.reverse()
                day = time.strftime("%Y-%m-%d", time.gmtime(166320000 + number * 86400))
                db.execute("INSERT INTO Schedule (GameDate, VisitorTeamIndex, HomeTeamIndex) VALUES (?, ?, ?)",
                           (day, *sides))
            teams[1:] = [teams[-1]] + teams[1:-1]
    db.close()


def faults(data):
    """What doesn't add up; empty when all does."""
    db = sqlite3.connect(season_file(data))
    number = lambda sql: db.execute(sql).fetchone()[0] or 0
    found = []

    def equal(what, left, right):
        a, b = number(left), number(right)
        if a != b:
            found.append(f"{what}: {a} and {b}")

    if number("PRAGMA integrity_check") != "ok":
        found.append("the file is damaged")
    played = "SELECT count(*) FROM Schedule WHERE Played <> 0"
    for table, column in [("KorvTeams", "W"), ("KorvTeams", "L"), ("KorvPitchers", "W"), ("TeamVsTeam", "vsTeamWins"),
                          ("KorvPitcherResultsLog", "W")]:
        equal(f"games and {table}.{column}", played, f"SELECT sum({column}) FROM {table}")
    equal("games and team games", f"SELECT 2 * ({played})", "SELECT sum(GS) FROM KorvTeams")
    for log in ("KorvBatterResultsLog", "KorvPitcherResultsLog"):
        equal(f"games and {log}", played, f"SELECT count(DISTINCT GameID) FROM {log}")
    for column in BATTING:
        batters = {"2B": "Doubles", "3B": "Triples"}.get(column, column)
        men = f'SELECT (SELECT sum({batters}) FROM KorvBatters) + (SELECT sum("{column}") FROM KorvPitchers)'
        equal(f"teams and men, {column}", f'SELECT sum("{column}") FROM KorvTeams', men)
        equal(f"teams and games, {column}", f'SELECT sum("{column}") FROM KorvTeams',
              f'SELECT sum("Visitor{column}" + "Home{column}") FROM Schedule')
        equal(f"men and logs, {column}", men,
              f'SELECT (SELECT sum("{column}") FROM KorvBatterResultsLog) + '
              f'(SELECT sum("{column}") FROM KorvPitcherResultsLog)')
    for column in PITCHING:
        equal(f"teams and men, {column}", f"SELECT sum({column}) FROM KorvTeams", f"SELECT sum({column}) FROM KorvPitchers")
        equal(f"men and logs, {column}", f"SELECT sum({column}) FROM KorvPitchers",
              f"SELECT sum({column}) FROM KorvPitcherResultsLog")
    equal("teams and fielders, PutOuts", "SELECT sum(PutOuts) FROM KorvTeams",
          "SELECT sum(PutOuts) FROM FieldingStats WHERE Position NOT IN ('PH', 'PR', 'DH')")
    count = number(played)
    db.close()
    return count, found


def main():
    words = argparse.ArgumentParser()
    words.add_argument("program")
    words.add_argument("--kills", type=int, default=20)
    words.add_argument("--rounds", type=int, default=60)
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
    write_schedule(whole, options.rounds)
    shutil.copytree(whole, torn)
    start = time.monotonic()
    run(program, whole, "play-season", SEASON, "--seed", PLAY_SEED)
    length = time.monotonic() - start
    total, found = faults(whole)
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
        played, found = faults(torn)
        hits += played > before
        if found or played < before:
            print(f"after kill {kills}, {played} games:", *found, sep="\n  ")
            return 1
    run(program, torn, "play-season", SEASON, "--seed", PLAY_SEED)
    played, found = faults(torn)
    same = run(program, whole, "hash", SEASON) == run(program, torn, "hash", SEASON)
    print(f"{kills} kills, {hits} of them after games had been posted; {played} of {total} games at the end; "
          f"{'the same season' if same else 'ANOTHER SEASON'} as without kills")
    for fault in found:
        print(" ", fault)
    if hits == 0:
        print("no kill met a game: give more --rounds")
    return 0 if same and not found and played == total and hits > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
