#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

// Two teams of invented men without charts, set at their first pitch: enough for everything that keeps the lines. Men 0
// to 7 of the batters play C, 1B, 2B, 3B, SS, LF, CF and RF, in that order and in slots 1 to 8; 8 to 13 sit on the
// bench. Pitchers 0 to 2 are starters, 3 to 12 relievers; pitcher 0 starts, in slot 9 unless a DH (man 8) bats there.
class BoxGame {
  public:
    explicit BoxGame(bool dh = false) {
        data.DHUsed = dh;
        data.rules.UseParkEffects = data.rules.UseYearEffects = false;
        for (const Side side : kBothSides) {
            FillRoster(data.team[side].roster, side);
            CompileIdentities(data.team[side]);
            const LineupInput lineup = StartingLineup(side);
            for (std::size_t i = 0; i < 9; ++i) {
                state[side].lineup[i].player = lineup.player[i];
                state[side].lineup[i].position = lineup.position[i];
            }
            state[side].pitcher = lineup.pitcher;
            RebuildLineupDetails(data, state, side);
        }
        SetupBoxScore(data, state);
    }

    static PlayerRef Man(int index) { return {'B', static_cast<std::int16_t>(index)}; }
    static PlayerRef Arm(int index) { return {'P', static_cast<std::int16_t>(index)}; }

    LineupInput StartingLineup(Side side) const {
        LineupInput lineup;
        lineup.side = side;
        for (std::size_t i = 0; i < 8; ++i) {
            lineup.player[i] = Man(static_cast<int>(i));
            lineup.position[i] = static_cast<Position>(static_cast<int>(Position::C) + static_cast<int>(i));
        }
        lineup.player[8] = data.DHUsed ? Man(8) : Arm(0);
        lineup.position[8] = data.DHUsed ? Position::DH : Position::P;
        lineup.pitcher = Arm(0);
        return lineup;
    }

    // The line-up that stands now, to be changed and put in.
    LineupInput Now(Side side) const {
        LineupInput lineup;
        lineup.side = side;
        for (std::size_t i = 0; i < 9; ++i) {
            lineup.player[i] = state[side].lineup[i].player;
            lineup.position[i] = state[side].lineup[i].position;
        }
        lineup.pitcher = state[side].pitcher;
        return lineup;
    }

    Reject Change(const LineupInput& lineup) {
        const Reject reject = CheckLineupChange(data, state, lineup);
        if (reject != Reject::None) return reject;
        Step step{data, state};
        ChangeLineup(step, lineup);
        return reject;
    }

    Reject BringIn(Side side, int arm) {
        LineupInput lineup = Now(side);
        lineup.pitcher = Arm(arm);
        for (std::size_t i = 0; i < 9; ++i) {
            if (lineup.position[i] == Position::P) lineup.player[i] = Arm(arm);
        }
        return Change(lineup);
    }

    // Takes one play into the lines: outs of the play are counted first, as the runner step would have done.
    void Book(Result result, int outs = 0, const std::function<void(Play&)>& more = {}) {
        state.Outs = static_cast<std::uint8_t>(state.Outs + outs);
        state.play = Play{};
        state.play.PlayResult = result;
        if (more) more(state.play);
        Step step{data, state};
        UpdateBoxScore(step);
    }

    // The men of these slots of the side at bat score; the score rises as the runner step would have let it.
    static std::function<void(Play&)> Runs(GameState& state, std::vector<int> slots, int earned, int battedIn) {
        return [&state, slots, earned, battedIn](Play& play) {
            for (const int slot : slots) {
                play.RunsScoredList[play.RunsScoredCount++] = static_cast<std::uint8_t>(slot);
                ++state.Batting().Runs;
            }
            play.EarnedRunsOnPlay = static_cast<std::uint8_t>(earned);
            play.RBIOnPlay = static_cast<std::uint8_t>(battedIn);
        };
    }

    void NextHalf() {
        state.Outs = 0;
        if (state.BattingSide == Side::Home) ++state.Inning;
        state.BattingSide = Other(state.BattingSide);
    }

    void RetireSide() {
        for (int outs = 0; outs < 3; ++outs) Book(Result::K, 1);
        NextHalf();
    }

    BatterLine& Batter(Side side, int slot) { return *FindBatterLine(state[side], slot); }
    FielderLine& Fielder(Side side, Position position) { return *FindFielderLine(state[side], position); }
    PitchingLine& Pitcher(Side side, int line) { return state[side].box.pitching[static_cast<std::size_t>(line)]; }

    GameData data;
    GameState state;

  private:
    static void FillRoster(TeamRoster& roster, Side side) {
        for (int i = 0; i < 14; ++i) {
            tarvane::Batter man;
            man.playerID = 100 + i;
            man.playerName = std::string(1, SideLetter(side)) + " Man " + std::to_string(i);
            man.LahmanPlayerID = "man" + std::to_string(i);
            man.Pos[0] = {static_cast<Position>(static_cast<int>(Position::C) + i % 8), static_cast<std::int16_t>(i),
                          'F'};
            roster.batters.push_back(man);
        }
        for (int i = 0; i < 13; ++i) {
            tarvane::Pitcher arm;
            arm.playerID = 200 + i;
            arm.playerName = std::string(1, SideLetter(side)) + " Arm " + std::to_string(i);
            arm.LahmanPlayerID = "arm" + std::to_string(i);
            arm.Pos[0] = {Position::P, 3, 'D'};
            arm.pitcherType = i < 3 ? 'S' : 'R';
            roster.pitchers.push_back(arm);
        }
    }
};

}  // namespace tarvane
