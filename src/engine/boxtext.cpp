#include "engine/boxtext.h"

#include <algorithm>
#include <vector>

#include "base/text.h"
#include "engine/availability.h"

namespace tarvane {

namespace {

constexpr int kNameWidth = 28;  // the least width of the column of names

// Columns of right-aligned figures behind one of names.
class Table {
  public:
    explicit Table(std::vector<std::string> heads) : heads_(std::move(heads)) {}

    void Add(std::string name, const std::vector<int>& figures) {
        Row row{std::move(name), {}};
        for (const int figure : figures) row.figures.push_back(std::to_string(figure));
        rows_.push_back(std::move(row));
    }
    void Add(std::string name, std::string first, const std::vector<int>& rest) {
        Add(std::move(name), rest);
        rows_.back().figures.insert(rows_.back().figures.begin(), std::move(first));
    }

    std::string Text(int nameWidth) const {
        std::string text = PadRight(heads_.front(), nameWidth);
        for (std::size_t i = 1; i < heads_.size(); ++i) text += PadLeft(heads_[i], WidthOf(i));
        for (const Row& row : rows_) {
            text += '\n' + PadRight(row.name, nameWidth);
            for (std::size_t i = 0; i < row.figures.size(); ++i) text += PadLeft(row.figures[i], WidthOf(i + 1));
        }
        return text + '\n';
    }

    int NameWidth() const {
        int width = std::max(kNameWidth, TextWidth(heads_.front()));
        for (const Row& row : rows_) width = std::max(width, TextWidth(row.name));
        return width;
    }

  private:
    struct Row {
        std::string name;
        std::vector<std::string> figures;
    };

    int WidthOf(std::size_t column) const {
        int width = std::max(3, TextWidth(heads_[column]) + 1);
        for (const Row& row : rows_) width = std::max(width, TextWidth(row.figures[column - 1]) + 1);
        return width;
    }

    std::vector<std::string> heads_;
    std::vector<Row> rows_;
};

std::string TeamName(const GameData& data, Side side) {
    const Team& team = data[side].roster.team;
    if (!team.shortName.empty()) return team.shortName;
    if (!team.fullName.empty()) return team.fullName;
    return side == Side::Visitor ? "Visitors" : "Home team";
}

// --- Line score ---

std::string InningText(const GameState& state, Side side, int inning) {
    const bool yetToCome = inning == state.Inning && side == Side::Home && state.BattingSide == Side::Visitor;
    if (yetToCome) return state.BottomNotPlayed ? "x" : " ";
    return std::to_string(state[side].InningRuns[static_cast<std::size_t>(inning - 1)]);
}

// Innings stand in groups of three, as on a score board.
std::string Gap(int inning) {
    return inning % 3 == 1 && inning > 1 ? "  " : " ";
}

}  // namespace

std::string InningsText(int outs) {
    return std::to_string(outs / 3) + '.' + std::to_string(outs % 3);
}

std::string LineScoreText(const GameData& data, const GameState& state) {
    const int innings = std::min<int>(std::max<int>(state.Inning, 9), kMaxInnings);
    int nameWidth = 0;
    for (const Side side : kBothSides) nameWidth = std::max(nameWidth, TextWidth(TeamName(data, side)) + 2);

    std::string head(static_cast<std::size_t>(nameWidth), ' ');
    PerSide<std::string> row;
    for (const Side side : kBothSides) row[side] = PadRight(TeamName(data, side), nameWidth);
    for (int inning = 1; inning <= innings; ++inning) {
        const std::string number = std::to_string(inning);
        int width = TextWidth(number);
        PerSide<std::string> text;
        for (const Side side : kBothSides) {
            text[side] = inning <= state.Inning ? InningText(state, side, inning) : " ";
            width = std::max(width, TextWidth(text[side]));
        }
        head += Gap(inning) + PadLeft(number, width);
        for (const Side side : kBothSides) row[side] += Gap(inning) + PadLeft(text[side], width);
    }
    head += "    R   H   E  LOB\n";
    for (const Side side : kBothSides) {
        const TeamState& team = state[side];
        row[side] += ' ';
        for (const int figure : {team.Runs, team.Hits, team.Errors}) row[side] += PadLeft(std::to_string(figure), 4);
        row[side] += PadLeft(std::to_string(team.LOB), 5) + '\n';
    }
    return head + row[Side::Visitor] + row[Side::Home];
}

namespace {

// --- Batters ---

std::string LowerPosition(Position position) {
    std::string text;
    for (const char c : PositionText(position)) {
        if (c != ' ') text += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
    return text;
}

// All the places of a man in the order in which he took them: "ph-lf".
std::string Positions(const BoxLines& box, const BatterLine& batter) {
    std::vector<Position> places{batter.position};
    for (int i = 0; i < box.FielderLineCount; ++i) {
        const FielderLine& line = box.fielder[static_cast<std::size_t>(i)];
        const bool his = line.player == batter.player && line.Slot == batter.Slot;
        if (his && std::find(places.begin(), places.end(), line.position) == places.end()) {
            places.push_back(line.position);
        }
    }
    std::string text;
    for (const Position place : places) text += (text.empty() ? "" : "-") + LowerPosition(place);
    return text;
}

// The batters' lines by slot, and in each slot in the order of their coming in.
std::vector<const BatterLine*> BattingOrder(const BoxLines& box) {
    std::vector<const BatterLine*> order;
    for (int slot = 1; slot <= 10; ++slot) {
        for (int i = 0; i < box.BatterLineCount; ++i) {
            const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
            const bool batted = slot < 10 || line.total != BattingCounts{};
            if (line.Slot == slot && batted) order.push_back(&line);
        }
    }
    return order;
}

std::vector<int> BattingFigures(const BatterLine& line) {
    const BattingCounts& t = line.total;
    return {t.AB, line.R, t.H, t.RBI, t.BB, t.SO};
}

Table BattingTable(const GameData& data, const GameState& state, Side side) {
    Table table({TeamName(data, side), "AB", "R", "H", "RBI", "BB", "SO"});
    std::vector<int> totals(6, 0);
    int slot = 0;
    for (const BatterLine* line : BattingOrder(state[side].box)) {
        const std::string indent = line->Slot == slot ? "  " : "";
        slot = line->Slot;
        const std::string name = indent + PlayerName(data[side], line->player);
        const std::vector<int> figures = BattingFigures(*line);
        for (std::size_t i = 0; i < figures.size(); ++i) totals[i] += figures[i];
        table.Add(name + ' ' + Positions(state[side].box, *line), figures);
    }
    table.Add("Totals", totals);
    return table;
}

// --- Notes ---

// "Smith, Jones 2" from the lines for which the count is above 0; a man with several lines is named once.
template <class Lines, class Count>
std::string NamesWithCounts(const TeamData& team, const Lines& lines, int used, Count count) {
    std::vector<std::pair<PlayerRef, int>> men;
    for (int i = 0; i < used; ++i) {
        const auto& line = lines[static_cast<std::size_t>(i)];
        const int n = count(line);
        if (n == 0) continue;
        const auto known = std::find_if(men.begin(), men.end(), [&](const auto& m) { return m.first == line.player; });
        if (known == men.end()) {
            men.emplace_back(line.player, n);
        } else {
            known->second += n;
        }
    }
    std::string text;
    for (const auto& [player, n] : men) {
        text += (text.empty() ? "" : ", ") + PlayerName(team, player);
        if (n > 1) text += ' ' + std::to_string(n);
    }
    return text;
}

void AddNote(std::string& text, const char* label, const std::string& what) {
    if (!what.empty()) text += std::string(label) + ": " + what + '\n';
}

// Who batted or ran for whom.
std::string SubstitutionNotes(const TeamData& team, const BoxLines& box) {
    std::string text;
    for (int i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
        if (line.position != Position::PH && line.position != Position::PR) continue;
        const BatterLine* before = nullptr;
        for (int j = 0; j < i; ++j) {
            const BatterLine& other = box.batter[static_cast<std::size_t>(j)];
            if (other.Slot == line.Slot) before = &other;
        }
        if (!before) continue;
        const char* verb = line.position == Position::PH ? " batted for " : " ran for ";
        text += PlayerName(team, line.player) + verb + PlayerName(team, before->player) + ".\n";
    }
    return text;
}

std::string BattingNotes(const GameData& data, const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    const auto batted = [&](std::uint8_t BattingCounts::*count) {
        return NamesWithCounts(data[side], box.batter, box.BatterLineCount,
                               [&](const BatterLine& line) { return line.total.*count; });
    };
    const auto ran = [&](std::uint8_t BatterLine::*count) {
        return NamesWithCounts(data[side], box.batter, box.BatterLineCount,
                               [&](const BatterLine& line) { return line.*count; });
    };
    std::string text = SubstitutionNotes(data[side], box);
    AddNote(text, "2B", batted(&BattingCounts::Doubles));
    AddNote(text, "3B", batted(&BattingCounts::Triples));
    AddNote(text, "HR", batted(&BattingCounts::HR));
    AddNote(text, "SH", batted(&BattingCounts::SH));
    AddNote(text, "SF", batted(&BattingCounts::SF));
    AddNote(text, "HBP", batted(&BattingCounts::HBP));
    AddNote(text, "GIDP", batted(&BattingCounts::GIDP));
    AddNote(text, "SB", ran(&BatterLine::SB));
    AddNote(text, "CS", ran(&BatterLine::CS));
    return text;
}

std::string FieldingNotes(const GameData& data, const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    const auto fielded = [&](std::uint8_t FielderLine::*count) {
        return NamesWithCounts(data[side], box.fielder, box.FielderLineCount,
                               [&](const FielderLine& line) { return line.*count; });
    };
    // The double plays of a side are those that the other side's batters hit into.
    const BoxLines& other = state[Other(side)].box;
    int doublePlays = 0;
    for (int i = 0; i < other.BatterLineCount; ++i) doublePlays += other.batter[static_cast<std::size_t>(i)].total.GIDP;
    std::string text;
    AddNote(text, "E", fielded(&FielderLine::Errors));
    if (doublePlays > 0) AddNote(text, "DP", std::to_string(doublePlays));
    AddNote(text, "PB", fielded(&FielderLine::PassBalls));
    AddNote(text, "LOB", std::to_string(state[side].LOB));
    return text;
}

// --- Pitchers ---

Table PitchingTable(const GameData& data, const GameState& state, Side side) {
    Table table({TeamName(data, side), "IP", "H", "R", "ER", "BB", "SO", "HR", "BF"});
    const BoxLines& box = state[side].box;
    for (int i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[static_cast<std::size_t>(i)];
        std::string name = PlayerName(data[side], line.player);
        if (line.Win) name += " (W)";
        if (line.Loss) name += " (L)";
        if (line.Save) name += " (S)";
        table.Add(std::move(name), InningsText(line.IPOuts),
                  {line.H, line.R, line.ER, line.BB, line.SO, line.HR, line.BF});
    }
    return table;
}

}  // namespace

std::string BoxScoreText(const GameData& data, const GameState& state) {
    const auto full = [&](Side side) {
        const std::string& name = data[side].roster.team.fullName;
        return name.empty() ? TeamName(data, side) : name;
    };
    std::string text = full(Side::Visitor) + " at " + full(Side::Home) + '\n';
    std::string where = data.gameDate;
    if (!data.park.Stadium.empty()) where += (where.empty() ? "" : ", ") + data.park.Stadium;
    if (!where.empty()) text += where + '\n';
    text += '\n' + LineScoreText(data, state);

    int width = 0;
    for (const Side side : kBothSides) {
        width = std::max(
            {width, BattingTable(data, state, side).NameWidth(), PitchingTable(data, state, side).NameWidth()});
    }
    for (const Side side : kBothSides) {
        text += '\n' + BattingTable(data, state, side).Text(width) + BattingNotes(data, state, side) +
                FieldingNotes(data, state, side);
    }
    for (const Side side : kBothSides) text += '\n' + PitchingTable(data, state, side).Text(width);
    return text;
}

// --- Proof ---

bool BoxProof::Proves() const {
    return std::all_of(side.value.begin(), side.value.end(),
                       [](const SideProof& s) { return s.FacedProves() && s.AppearancesProve(); });
}

BoxProof ProveBox(const GameState& state) {
    BoxProof proof;
    for (const Side side : kBothSides) {
        SideProof& p = proof.side[side];
        const BoxLines& bat = state[side].box;
        const BoxLines& pitch = state[Other(side)].box;
        for (int i = 0; i < bat.BatterLineCount; ++i) {
            const BattingCounts& t = bat.batter[static_cast<std::size_t>(i)].total;
            p.AB += t.AB;
            p.BB += t.BB;
            p.HBP += t.HBP;
            p.SH += t.SH;
            p.SF += t.SF;
        }
        for (int i = 0; i < pitch.PitchersUsed; ++i) {
            const PitchingLine& line = pitch.pitching[static_cast<std::size_t>(i)];
            p.BF += line.BF;
            p.Outs += line.IPOuts;
            p.OnBase += line.RunnersCharged;
        }
        p.Runs = state[side].Runs;
        p.LOB = state[side].LOB;
        p.Relieved = pitch.PitchersUsed > 1;
    }
    return proof;
}

std::string BoxProofText(const GameData& data, const GameState& state) {
    const BoxProof proof = ProveBox(state);
    std::string text;
    for (const Side side : kBothSides) {
        const SideProof& p = proof.side[side];
        const auto add = [](const char* sign, int n, const char* what) {
            return std::string(sign) + what + ' ' + std::to_string(n);
        };
        text += TeamName(data, side) + ": " + add("", p.AB, "AB") + add(" + ", p.BB, "BB") + add(" + ", p.HBP, "HBP") +
                add(" + ", p.SH, "SH") + add(" + ", p.SF, "SF") + " = " + std::to_string(p.Appearances()) +
                (p.FacedProves() ? " = " : " is not ") + add("", p.BF, "BF") + "; " + add("", p.Runs, "R") +
                add(" + ", p.LOB, "LOB") + add(" + ", p.Outs, "outs");
        if (p.OnBase > 0) text += add(" + ", p.OnBase, "on base at the end");
        if (p.Surplus() > 0 && p.Relieved) text += add(" - ", p.Surplus(), "relieved men's runners put out");
        text += (p.AppearancesProve() ? " = " : " is not ") + std::to_string(p.Appearances()) + '\n';
    }
    return text;
}

}  // namespace tarvane
