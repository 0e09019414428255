#include <fmt/format.h>

#include "ratings/generator_run.h"

namespace tarvane {

namespace {

constexpr std::string_view kSplitsCaption = "Generating Lefty/Righty Splits ... Please Wait";

// Finds a player's row by his Lahman key and team; of two rows under one key the first.
class PlayerIndex {
  public:
    explicit PlayerIndex(const std::vector<PlayerRow>& players) {
        for (const PlayerRow& player : players) index_.emplace(Key(player.LahmanPlayerID, player.teamID), &player);
    }
    const PlayerRow* Find(const std::string& LahmanPlayerID, const std::string& teamID) const {
        const auto found = index_.find(Key(LahmanPlayerID, teamID));
        return found == index_.end() ? nullptr : found->second;
    }

  private:
    static std::string Key(const std::string& player, const std::string& team) { return player + '\t' + team; }
    std::unordered_map<std::string, const PlayerRow*> index_;
};

SplitMix PitchingMix(Database& season) {
    const std::vector<PlayerRow> players = ReadPlayers(season, PlayerTable::Pitchers);
    const PlayerIndex pitchers(players);
    SplitMix mix;
    for (const LahmanPitchingRow& row : ReadLahmanPitching(season).rows) {
        const PlayerRow* pitcher = pitchers.Find(row.playerID, row.KorvTeamID);
        mix.AddPitcher(row.IPouts, pitcher != nullptr ? pitcher->throws_ : kRightHand);
    }
    return mix;
}

std::vector<std::string> SplitUpdateColumns() {
    std::vector<std::string> columns;
    for (const std::string_view side : {"vsLeft", "vsRight"}) {
        for (const std::string_view name :
             {"AB", "H", "2B", "3B", "HR", "RBI", "BB", "SO", "HBP", "SH", "SF", "GIDP"}) {
            columns.push_back(fmt::format("{}{}", side, name));
        }
    }
    return columns;
}

void PutSplit(RowUpdate& update, const SplitLine& l) {
    for (const int count : {l.AB, l.H, l.Doubles, l.Triples, l.HR, l.RBI, l.BB, l.SO, l.HBP, l.SH, l.SF, l.GIDP}) {
        update.PutInt(count);
    }
}

bool TakeRealSplit(LahmanBattingRow& row, const PlayerRow& batter, RetroSplitLookup& retro) {
    const auto line = retro.Find(batter.playerName, batter.teamID);
    if (line) ApplyRetroLine(row, *line);
    return line.has_value();
}

}  // namespace

GeneratorReport GenerateSplits(Database& season, const SplitSettings& settings, RetroSplitLookup* retro, Random& random,
                               Progress* progress) {
    CheckSplitSettings(settings);
    const SplitMix mix = PitchingMix(season);
    StatisticsTable<LahmanBattingRow> lines = ReadLahmanBatting(season);
    const std::vector<PlayerRow> players = ReadPlayers(season, PlayerTable::Batters);
    const PlayerIndex batters(players);

    GeneratorReport report;
    Transaction transaction(season);
    RowUpdate update(season, "LahmanBatting", SplitUpdateColumns());
    const int total = static_cast<int>(lines.rows.size());
    for (std::size_t i = 0; i < lines.rows.size(); ++i) {
        LahmanBattingRow& row = lines.rows[i];
        const PlayerRow* batter = batters.Find(row.playerID, row.KorvTeamID);
        if (batter == nullptr) continue;  // kept out by the at-bat filter of the import
        GenerateSplitRow(row, batter->bats, mix, settings, random);
        const bool real = retro != nullptr && TakeRealSplit(row, *batter, *retro);
        PutSplit(update, row.vsLeft);
        PutSplit(update, row.vsRight);
        update.Write(lines.rowids[i]);
        if (report.written++ % kReportEvery == 0) {
            const std::string caption =
                real ? fmt::format("{} {}", kSplitsCaption, batter->playerName) : std::string(kSplitsCaption);
            ReportProgress(progress, caption, static_cast<int>(i), total);
        }
    }
    transaction.Commit();
    return report;
}

}  // namespace tarvane
