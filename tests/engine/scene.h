#pragma once

#include <gtest/gtest.h>

#include <string>

#include "fixture.h"

namespace tarvane {

// The colours of cells, short for tables.
inline constexpr std::int32_t kG = kGreenWord, kR = kRedWord, kB = kBlueWord, kY = kStoredYellowWord, kW = kWhiteWord;

// One situation of a game on charts that say the same on every roll, so that a test chooses each result by itself. The
// Visitors bat; the batter is in slot 1, and the men put on base by Put are those of slots 4, 5 and 6, written 1, 2 and
// 3 by the base they started from; the batter is b.
class Scene {
  public:
    explicit Scene(LeagueRules rules = PlainRules(), bool dh = false) : data(Base()) {
        data.rules = rules;
        data.DHUsed = dh;
        state = fixture::FirstPitch(data);
        Pitcher(" ", kGreenWord);
        data.compiled.Fielding.fill(Filled("SS", kWhiteWord));
        values.InfieldRoll = 90;
        values.FlyFielderRoll = 10;
    }

    // No columns, no ratings, no fatigue: what the cells say happens.
    static LeagueRules PlainRules() {
        LeagueRules rules;
        rules.UseParkEffects = rules.UseYearEffects = rules.PitcherStamina = rules.BatterBBSORating = false;
        rules.UseErrorRatings = rules.CatcherORating = false;
        return rules;
    }

    static Chart Filled(const std::string& text, std::int32_t color) {
        return CompileChart(fixture::Everywhere(text, color));
    }

    void Pitcher(const std::string& text, std::int32_t color) {
        for (const Side side : kBothSides)
            for (PitcherCharts& charts : data.team[side].pitcherCharts) charts.pitch = Filled(text, color);
    }
    void Batter(const std::string& text, std::int32_t color) {
        for (const Side side : kBothSides) {
            for (BatterCharts& charts : data.team[side].batterCharts) charts.vsL = charts.vsR = Filled(text, color);
            for (PitcherCharts& charts : data.team[side].pitcherCharts) charts.Bat = Filled(text, color);
        }
    }
    void Park(const std::string& text) {
        data.rules.UseParkEffects = true;
        data.parkChart = Filled(text, kWhiteWord);
    }
    void Year(const std::string& text) {
        data.rules.UseYearEffects = true;
        data.yearChart = Filled(text, kWhiteWord);
    }

    // "1-3": men on first and third. Their pitcher answers for them.
    void Put(const std::string& bases, int outs = 0) {
        std::uint8_t on = 0;
        for (std::size_t base = 1; base <= 3; ++base) {
            const bool there = bases[base - 1] != '-';
            state.Batting().runner[base] = {static_cast<std::uint8_t>(there ? base + 3 : 0), false};
            on = static_cast<std::uint8_t>(on + (there ? 1 : 0));
        }
        PitchingLine& pitcher = state.Fielding().box.pitching[0];
        pitcher.RunnersCharged = on;
        pitcher.IPOuts = static_cast<std::int16_t>(3 * (state.Inning - 1) + outs);
        state.Outs = static_cast<std::uint8_t>(outs);
    }

    // The Home team's last turn, the score as given.
    void LastInning(int visitorRuns, int homeRuns) {
        state.BattingSide = Side::Home;
        state.Inning = 9;
        const auto score = [&](Side side, int runs) {
            state[side].Runs = state[side].InningRuns[0] = static_cast<std::int16_t>(runs);
            state[Other(side)].box.pitching[0].R = static_cast<std::int16_t>(runs);
            state[side].box.batter[7].R = static_cast<std::uint8_t>(runs);
        };
        score(Side::Visitor, visitorRuns);
        score(Side::Home, homeRuns);
        state[Side::Visitor].box.pitching[0].IPOuts = 24;
        state[Side::Home].box.pitching[0].IPOuts = 27;
    }

    Reject Roll(int chartRoll = 20) { return Put(RollInput{static_cast<std::uint8_t>(chartRoll), values}); }
    Reject Answer(bool yes) { return Put(DecisionInput{state.awaited.side, yes}); }
    Reject Put(const Input& input) {
        const Reject reject = Advance(data, state, input, listener);
        EXPECT_EQ(StateOk(data, state), "");
        return reject;
    }
    // A whole turn on the batter's chart.
    void Bat(const std::string& text, std::int32_t color, int chartRoll = 20) {
        Batter(text, color);
        Roll();
        Roll(chartRoll);
    }

    // Where everybody is and who has scored: first, second, third, then the runs, "b1-:3".
    std::string Bases() const {
        std::string text;
        for (std::size_t base = 1; base <= 3; ++base) text += Letter(state[at].runner[base].slot);
        text += ':';
        for (const int slot : {6, 5, 4, 1})
            for (const BatterLine& line : state[at].box.batter)
                if (line.Active && line.Slot == slot && line.R > 0) text += Letter(slot);
        return text;
    }

    int RBI() const { return state[at].box.batter[0].total.RBI; }
    int EarnedRuns() const { return state[Other(at)].box.pitching[0].ER; }
    FielderLine& Fielder(Position position) {
        for (FielderLine& line : state[Other(at)].box.fielder)
            if (line.Active && line.position == position) return line;
        ADD_FAILURE() << "nobody at " << PositionText(position);
        return state[Other(at)].box.fielder[0];
    }

    static char Letter(int slot) { return slot == 0 ? '-' : slot == 1 ? 'b' : static_cast<char>('1' + slot - 4); }

    // Compiled once: what a scene changes, it changes in its copy.
    static const GameData& Base() {
        static const GameData base = fixture::MakeGameData();
        return base;
    }

    GameData data;
    GameState state;
    PlayValues values;
    GameListener* listener = nullptr;
    Side at = Side::Visitor;  // whose bases are told
};

}  // namespace tarvane
