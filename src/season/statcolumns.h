#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/database.h"
#include "records/player.h"

namespace tarvane {

// Which column of a table holds which count. Each list stands here once and serves the making of the SQL, the reading
// and the writing: whoever visits it is told prefix, name and member, in the same order each time.

// What a man or a team did in the field.
struct FieldingTotals {
    std::int16_t PutOuts = 0, Assists = 0, Errors = 0, DoublePlays = 0, PassBalls = 0, OpponentSB = 0, OpponentCS = 0,
                 GreatDefensivePlays = 0;
    friend bool operator==(const FieldingTotals&, const FieldingTotals&) = default;
};

template <class Fielding, class Visit>
void FieldingColumns(Fielding& f, std::string_view prefix, Visit& visit) {
    visit(prefix, "PutOuts", f.PutOuts);
    visit(prefix, "Assists", f.Assists);
    visit(prefix, "Errors", f.Errors);
    visit(prefix, "DoublePlays", f.DoublePlays);
    visit(prefix, "PassBalls", f.PassBalls);
    visit(prefix, "OpponentSB", f.OpponentSB);
    visit(prefix, "OpponentCS", f.OpponentCS);
    visit(prefix, "GreatDefensivePlays", f.GreatDefensivePlays);
}

// The twelve counts that are also kept by the hand of the opposing pitcher. The batters' own totals write the words
// Doubles and Triples where all other tables have 2B and 3B.
template <class Batting, class Visit>
void SplitColumns(Batting& b, std::string_view prefix, bool spelledOut, Visit& visit) {
    visit(prefix, "AB", b.AB);
    visit(prefix, "H", b.H);
    visit(prefix, spelledOut ? "Doubles" : "2B", b.Doubles);
    visit(prefix, spelledOut ? "Triples" : "3B", b.Triples);
    visit(prefix, "HR", b.HR);
    visit(prefix, "RBI", b.RBI);
    visit(prefix, "BB", b.BB);
    visit(prefix, "SO", b.SO);
    visit(prefix, "HBP", b.HBP);
    visit(prefix, "SH", b.SH);
    visit(prefix, "SF", b.SF);
    visit(prefix, "GIDP", b.GIDP);
}

// A team's batting; its runs are elsewhere.
template <class Batting, class Visit>
void TeamBattingColumns(Batting& b, std::string_view prefix, Visit& visit, bool spelledOut = false) {
    SplitColumns(b, prefix, spelledOut, visit);
    visit(prefix, "SB", b.SB);
    visit(prefix, "CS", b.CS);
}

template <class Batting, class Visit>
void PlayerBattingColumns(Batting& b, Visit& visit, bool spelledOut = false) {
    TeamBattingColumns(b, "", visit, spelledOut);
    visit("", "R", b.R);
}

template <class Rates, class Visit>
void RateColumns(Rates& r, std::string_view prefix, Visit& visit) {
    visit(prefix, "Avg", r.Avg);
    visit(prefix, "OBP", r.OBP);
    visit(prefix, "SLG", r.SLG);
    visit(prefix, "OPS", r.OPS);
    visit(prefix, "RC", r.RC);
}

template <class Pitching, class Visit>
void TeamPitchingColumns(Pitching& p, std::string_view prefix, Visit& visit, std::string_view hits = "oppH") {
    visit(prefix, "Games", p.Games);
    visit(prefix, "GS", p.GS);
    visit(prefix, "CG", p.CG);
    visit(prefix, "SHO", p.SHO);
    visit(prefix, "SV", p.SV);
    visit(prefix, "IPOuts", p.IPOuts);
    visit(prefix, hits, p.OppHits);
    visit(prefix, "OppHR", p.OppHR);
    visit(prefix, "ER", p.ER);
    visit(prefix, "OppBB", p.OppBB);
    visit(prefix, "OppSO", p.OppSO);
    visit(prefix, "OppHBP", p.OppHBP);
}

template <class Pitching, class Visit>
void PlayerPitchingColumns(Pitching& p, Visit& visit) {
    TeamPitchingColumns(p, "", visit, "OppHits");
    visit("", "W", p.W);
    visit("", "L", p.L);
    visit("", "OppRuns", p.OppRuns);
    visit("", "BF", p.BF);
}

template <class Man, class Visit>
void InjuryColumns(Man& injury, Visit& visit) {
    visit("", "InjuryDate", injury.InjuryDate);
    visit("", "InjuryNbrDate", injury.InjuryNbrDate);
    visit("", "InjuredDays", injury.InjuredDays);
    visit("", "InjuredDaysRemaining", injury.InjuredDaysRemaining);
}

template <class Man, class Visit>
void RestColumns(Man& pitcher, Visit& visit) {
    visit("", "PitcherRestDays", pitcher.PitcherRestDays);
    visit("", "PitchedOnDay", pitcher.PitchedOnDay);
    visit("", "IPOutsToday", pitcher.IPOutsToday);
}

// All of a batter's row that games change, but for injuries.
template <class Man, class Visit>
void BatterColumns(Man& b, Visit& visit) {
    visit("", "G", b.G);
    PlayerBattingColumns(b.total, visit, true);
    RateColumns(b.rates, "", visit);
    SplitColumns(b.vsLeft, "vsLeft", false, visit);
    RateColumns(b.vsLeftRates, "vsLeft", visit);
    SplitColumns(b.vsRight, "vsRight", false, visit);
    RateColumns(b.vsRightRates, "vsRight", visit);
}

template <class Man, class Visit>
void PitcherColumns(Man& p, Visit& visit) {
    PlayerPitchingColumns(p.total, visit);
    visit("", "Pct", p.Pct);
    visit("", "ERA", p.ERA);
    visit("", "WHIP", p.WHIP);
    visit("", "PitcherAutoOuts", p.PitcherAutoOuts);
    PlayerBattingColumns(p.batting, visit);
    RateColumns(p.battingRates, "", visit);
}

// --- Visitors --------------------------------------------------------------------------------------------------------

// Collects the names, quoted.
struct ColumnNamer {
    std::vector<std::string> names;
    template <class T>
    void operator()(std::string_view prefix, std::string_view name, const T&) {
        names.push_back("\"" + std::string(prefix) + std::string(name) + "\"");
    }
    // The names behind one another, each followed by suffix.
    std::string Joined(std::string_view suffix = {}) const {
        std::string text;
        for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name + std::string(suffix);
        return text;
    }
    std::string Marks() const {
        std::string text;
        for (std::size_t i = 0; i < names.size(); ++i) text += i == 0 ? "?" : ", ?";
        return text;
    }
};

// Binds the values to a statement's parameters, one after the other.
struct ColumnBinder {
    Statement& statement;
    int next = 1;
    template <class T>
    void operator()(std::string_view, std::string_view, const T& value) {
        if constexpr (std::is_integral_v<T>) {
            statement.Bind(next++, static_cast<std::int64_t>(value));
        } else {
            statement.Bind(next++, value);
        }
    }
};

// Reads the values of a row. Null reads 0.
struct ColumnReader {
    Statement& statement;
    int next = 0;
    template <class T>
    void operator()(std::string_view, std::string_view, T& value) {
        if constexpr (std::is_integral_v<T>) {
            value = static_cast<T>(statement.Int(next++));
        } else if constexpr (std::is_floating_point_v<T>) {
            value = statement.Double(next++);
        } else {
            value = statement.Text(next++);
        }
    }
};

}  // namespace tarvane
