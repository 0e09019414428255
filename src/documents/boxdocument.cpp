#include "documents/boxdocument.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>

#include "engine/availability.h"
#include "engine/boxtext.h"

namespace tarvane {

namespace {

std::string FullName(const GameData& data, Side side) {
    const Team& team = data[side].roster.team;
    if (!team.fullName.empty()) return team.fullName;
    if (!team.shortName.empty()) return team.shortName;
    return side == Side::Visitor ? "Visitors" : "Home";
}

std::string ShortName(const GameData& data, Side side) {
    const std::string& name = data[side].roster.team.shortName;
    return name.empty() ? FullName(data, side) : name;
}

// --- Line score ---

DocumentTable LineScore(const GameData& data, const GameState& state) {
    DocumentTable table;
    const int innings = std::min<int>(std::max<int>(state.Inning, 9), kMaxInnings);
    table.heads.emplace_back();
    for (int inning = 1; inning <= innings; ++inning) table.heads.push_back(std::to_string(inning));
    for (const char* head : {"R", "H", "E", "LOB"}) table.heads.emplace_back(head);
    for (const Side side : kBothSides) {
        std::vector<std::string> row{ShortName(data, side)};
        for (int inning = 1; inning <= innings; ++inning) {
            const bool notYet = inning > state.Inning ||
                                (inning == state.Inning && side == Side::Home && state.BattingSide == Side::Visitor);
            const bool spared = notYet && inning == state.Inning && state.BottomNotPlayed;
            row.push_back(spared   ? "x"
                          : notYet ? ""
                                   : std::to_string(state[side].InningRuns[static_cast<std::size_t>(inning - 1)]));
        }
        const TeamState& team = state[side];
        for (const int figure : {team.Runs, team.Hits, team.Errors, team.LOB}) row.push_back(std::to_string(figure));
        table.rows.push_back(std::move(row));
    }
    return table;
}

// --- Batting ---

struct Fielding {
    int PutOuts = 0, Assists = 0, Errors = 0, DoublePlays = 0;
    std::string places;
};

// A man's work in the field in one slot, and his places in the order in which he took them: "ph-lf".
Fielding FieldingOf(const BoxLines& box, const BatterLine& batter) {
    Fielding sum;
    std::vector<Position> places{batter.position};
    for (int i = 0; i < box.FielderLineCount; ++i) {
        const FielderLine& line = box.fielder[static_cast<std::size_t>(i)];
        if (!(line.player == batter.player) || line.Slot != batter.Slot) continue;
        sum.PutOuts += line.PutOuts;
        sum.Assists += line.Assists;
        sum.Errors += line.Errors;
        sum.DoublePlays += line.DoublePlays;
        if (std::find(places.begin(), places.end(), line.position) == places.end()) places.push_back(line.position);
    }
    for (const Position place : places) {
        std::string text(PositionText(place));
        while (!text.empty() && text.back() == ' ') text.pop_back();
        sum.places += (sum.places.empty() ? "" : "-") + text;
    }
    return sum;
}

struct Appeared {
    const BatterLine* line = nullptr;
    bool replaced = false;  // he came in for the man above him
};

// By slot, and in each slot in the order of their coming in. A pitcher for whom a DH bats stands last, if he did
// anything that the table shows.
std::vector<Appeared> BattingOrder(const BoxLines& box) {
    std::vector<Appeared> order;
    for (int slot = 1; slot <= 10; ++slot) {
        bool first = true;
        for (int i = 0; i < box.BatterLineCount; ++i) {
            const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
            if (line.Slot != slot) continue;
            order.push_back({&line, !first && slot < 10});
            first = false;
        }
    }
    return order;
}

int SeasonFigure(const TeamData& team, PlayerRef player, std::int16_t BattingTotals::*of) {
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? team.roster.pitchers[index].batting.*of : team.roster.batters[index].total.*of;
}

std::string Average(int hits, int atBats) {
    if (atBats == 0) return ".000";
    const std::string text = fmt::format("{:.3f}", static_cast<double>(hits) / atBats);
    return text.front() == '0' ? text.substr(1) : text;
}

// His season's average after this game: all his lines of the game count.
std::string AverageAfter(const TeamData& team, const BoxLines& box, PlayerRef player) {
    int hits = SeasonFigure(team, player, &BattingTotals::H), atBats = SeasonFigure(team, player, &BattingTotals::AB);
    for (int i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
        if (!(line.player == player)) continue;
        hits += line.total.H;
        atBats += line.total.AB;
    }
    return Average(hits, atBats);
}

std::vector<int> BattingFigures(const BatterLine& line, const Fielding& field) {
    const BattingCounts& t = line.total;
    return {t.AB,          line.R,        t.H,          t.Doubles,         t.Triples, t.HR, t.RBI,
            t.BB,          t.SO,          line.SB,      line.CS,           t.HBP,     t.SH, t.SF,
            field.PutOuts, field.Assists, field.Errors, field.DoublePlays, t.GIDP};
}

DocumentTable BattingTable(const GameData& data, const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    DocumentTable table;
    table.totals = true;
    table.heads = {ShortName(data, side),
                   "POS",
                   "AB",
                   "R",
                   "H",
                   "2B",
                   "3B",
                   "HR",
                   "RBI",
                   "BB",
                   "SO",
                   "SB",
                   "CS",
                   "HBP",
                   "SH",
                   "SF",
                   "PO",
                   "A",
                   "E",
                   "DP",
                   "GDP",
                   "AVG"};
    std::vector<int> totals(table.heads.size() - 3, 0);
    for (const Appeared& man : BattingOrder(box)) {
        const Fielding field = FieldingOf(box, *man.line);
        const std::vector<int> figures = BattingFigures(*man.line, field);
        const bool outside = man.line->Slot == 10;
        if (outside && std::all_of(figures.begin(), figures.end(), [](int n) { return n == 0; })) continue;
        std::vector<std::string> row{(man.replaced ? "  " : "") + PlayerName(data[side], man.line->player),
                                     field.places};
        for (std::size_t i = 0; i < figures.size(); ++i) {
            totals[i] += figures[i];
            row.push_back(std::to_string(figures[i]));
        }
        row.push_back(outside && man.line->total.AB == 0 ? "" : AverageAfter(data[side], box, man.line->player));
        table.rows.push_back(std::move(row));
    }
    std::vector<std::string> sum{"Totals", ""};
    for (const int figure : totals) sum.push_back(std::to_string(figure));
    sum.emplace_back();
    table.rows.push_back(std::move(sum));
    return table;
}

// --- Notes ---

// "Smith, Jones 2": the men for whom the count is above 0, each named once.
template <class Count>
std::string Names(const TeamData& team, const BoxLines& box, Count count) {
    std::vector<std::pair<PlayerRef, int>> men;
    for (int i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
        const int n = count(line);
        if (n == 0) continue;
        const auto known = std::find_if(men.begin(), men.end(), [&](const auto& m) { return m.first == line.player; });
        if (known == men.end())
            men.emplace_back(line.player, n);
        else
            known->second += n;
    }
    std::string text;
    for (const auto& [player, n] : men)
        text += (text.empty() ? "" : ", ") + PlayerName(team, player) + (n > 1 ? fmt::format(" {}", n) : "");
    return text;
}

std::vector<DocumentNote> Notes(const TeamData& team, const BoxLines& box) {
    const auto batted = [&](std::uint8_t BattingCounts::*of) {
        return Names(team, box, [of](const BatterLine& line) { return line.total.*of; });
    };
    std::vector<DocumentNote> notes{{"2B:", batted(&BattingCounts::Doubles)},
                                    {"3B:", batted(&BattingCounts::Triples)},
                                    {"HR:", batted(&BattingCounts::HR)},
                                    {"RBI:", batted(&BattingCounts::RBI)},
                                    {"SB:", Names(team, box, [](const BatterLine& line) { return line.SB; })}};
    notes.erase(std::remove_if(notes.begin(), notes.end(), [](const DocumentNote& n) { return n.text.empty(); }),
                notes.end());
    return notes;
}

// --- Pitching ---

// ERA as the tables have it: a third of an inning is .333, two are .667; nothing without an out or an earned run.
std::string EarnedRunAverage(int earnedRuns, int outs) {
    constexpr std::array<double, 3> kPart{0, 0.333, 0.667};
    if (earnedRuns == 0 || outs == 0) return "0.00";
    return fmt::format("{:.2f}", earnedRuns * 9 / (outs / 3 + kPart[static_cast<std::size_t>(outs % 3)]));
}

// "(W) (12-7)"; the record is that after the game.
std::string Decision(const Pitcher& pitcher, const PitchingLine& line) {
    const int wins = pitcher.total.W + (line.Win ? 1 : 0), losses = pitcher.total.L + (line.Loss ? 1 : 0);
    std::string text;
    for (const auto& [marked, mark] : {std::pair{line.Win, " (W)"}, {line.Loss, " (L)"}, {line.Save, " (SV)"}})
        if (marked) text += mark;
    return text.empty() ? text : text + fmt::format(" ({}-{})", wins, losses);
}

DocumentTable PitchingTable(const GameData& data, const GameState& state, Side side) {
    DocumentTable table;
    table.heads = {ShortName(data, side), "IP", "H", "R", "ER", "BB", "SO", "AO", "ERA"};
    const BoxLines& box = state[side].box;
    for (int i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[static_cast<std::size_t>(i)];
        const Pitcher& pitcher = data[side].roster.pitchers[static_cast<std::size_t>(line.player.index)];
        std::vector<std::string> row{PlayerName(data[side], line.player) + Decision(pitcher, line),
                                     InningsText(line.IPOuts)};
        for (const int figure : {line.H, line.R, line.ER, line.BB, line.SO, line.AutoOuts})
            row.push_back(std::to_string(figure));
        row.push_back(EarnedRunAverage(pitcher.total.ER + line.ER, pitcher.total.IPOuts + line.IPOuts));
        table.rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace

std::string ElapsedText(long seconds) {
    if (seconds < 1) return "Less than 1 second";
    return fmt::format("{}:{:02}:{:02}", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

BoxDocument MakeBoxDocument(const GameData& data, const GameState& state, long seconds) {
    BoxDocument box;
    box.title = FullName(data, Side::Visitor) + " at " + FullName(data, Side::Home);
    box.place = data.gameDate;
    if (!data.park.Stadium.empty()) box.place += (box.place.empty() ? "" : ", ") + data.park.Stadium;
    box.lineScore = LineScore(data, state);
    for (const Side side : kBothSides) {
        BoxSide& team = box.side[side];
        team.team = FullName(data, side);
        team.batting = BattingTable(data, state, side);
        team.notes = Notes(data[side], state[side].box);
        team.pitching = PitchingTable(data, state, side);
    }
    if (seconds >= 0) box.elapsed = "Time to play game: " + ElapsedText(seconds);
    return box;
}

}  // namespace tarvane
