#include "data/parks.h"

#include <fmt/core.h>

#include <array>

#include "data/rowreader.h"
#include "data/teams.h"

namespace tarvane {

namespace {

// Calls read with the row if the condition finds exactly one.
template <class Read>
bool ReadOneRow(Database& common, std::string_view table, std::string_view where, const std::vector<Value>& parameters,
                Read read) {
    Statement count = common.Prepare(fmt::format("SELECT count(*) FROM {} WHERE {}", table, where));
    Statement select = common.Prepare(fmt::format("SELECT * FROM {} WHERE {}", table, where));
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        count.Bind(static_cast<int>(i) + 1, parameters[i]);
        select.Bind(static_cast<int>(i) + 1, parameters[i]);
    }
    if (!count.Step() || count.Int(0) != 1) return false;
    RowReader row(std::move(select));
    if (!row.Next()) return false;
    read(row);
    return true;
}

std::int16_t Feet(RowReader& row, std::string_view name, std::int16_t ifNull) {
    return row.Number<std::int16_t>(name, ifNull);
}

void ReadPlaces(RowReader& row, Ballpark& park) {
    int number = 0;
    for (std::size_t i = 0; i < park.PosTop.size(); ++i) {
        park.PosTop[i] = row.NumberOf<std::int32_t>("Pos", ++number, "Top");
        park.PosLeft[i] = row.NumberOf<std::int32_t>("Pos", number, "Left");
    }
    park.PosBatterLTop = row.Number<std::int32_t>("PosBatterLTop");
    park.PosBatterLLeft = row.Number<std::int32_t>("PosBatterLLeft");
    park.PosBatterRTop = row.Number<std::int32_t>("PosBatterRTop");
    park.PosBatterRLeft = row.Number<std::int32_t>("PosBatterRLeft");
    number = 0;
    for (std::size_t i = 0; i < park.PosRunnerTop.size(); ++i) {
        park.PosRunnerTop[i] = row.NumberOf<std::int32_t>("PosRunner", ++number, "BTop");
        park.PosRunnerLeft[i] = row.NumberOf<std::int32_t>("PosRunner", number, "BLeft");
    }
}

void ReadPark(RowReader& row, Ballpark& park) {
    park.parkID = row.Number<std::int32_t>("parkID");
    park.Stadium = row.Text("Stadium");
    park.LOCATION = row.Text("LOCATION");
    park.Capacity = row.Number<std::int32_t>("Capacity");
    park.yearID = row.Number<std::int16_t>("yearID", 9999);
    park.LFFence = Feet(row, "LFFence", 315);
    park.CFFence = Feet(row, "CFFence", 400);
    park.RFFence = Feet(row, "RFFence", 315);
    park.AlleyLF = Feet(row, "AlleyLF", 370);
    park.AlleyRF = Feet(row, "AlleyRF", 370);
    park.HitRate = row.Double("HitRate");
    park.SinglesRate = row.Double("SinglesRate");
    park.DoublesRate = row.Double("DoublesRate");
    park.TriplesRate = row.Double("TriplesRate");
    park.HRRate = row.Double("HRRate");
    park.HitAvg = row.Double("HitAvg");
    park.SinglesAvg = row.Double("SinglesAvg");
    park.DoublesAvg = row.Double("DoublesAvg");
    park.TriplesAvg = row.Double("TriplesAvg");
    park.HRAvg = row.Double("HRAvg");
    park.DefAdjustment = row.Number<std::int16_t>("DefAdjustment");
    park.PitcherTiredAdjustment = row.Number<std::int16_t>("PitcherTiredAdjustment");
    park.SecondWindAdjustment = row.Number<std::int16_t>("SecondWindAdjustment");
    row.Cells("Roll", park.Roll);
    park.ParkImageLoc = row.Text("ParkImageLoc");
    ReadPlaces(row, park);
}

void ReadHitAverages(RowReader& row, EraAverages& averages) {
    averages.Hit = row.Double("HitAvg");
    averages.Singles = row.Double("SinglesAvg");
    averages.Doubles = row.Double("DoublesAvg");
    averages.Triples = row.Double("TriplesAvg");
    averages.HR = row.Double("HRAvg");
}

bool AllZero(const EraAverages& a) {
    return a.Hit == 0 && a.Singles == 0 && a.Doubles == 0 && a.Triples == 0 && a.HR == 0;
}

void ReadPositionRates(RowReader& row, const char* position, PositionBaseline& rates) {
    const std::string prefix = position;
    rates.ErrorsRate = row.Double(prefix + "ErrorsRate");
    rates.PORate = row.Double(prefix + "PORate");
    rates.ARate = row.Double(prefix + "ARate");
    rates.DPRate = row.Double(prefix + "DPRate");
}

}  // namespace

bool LoadBallpark(Database& common, std::int32_t parkID, const std::filesystem::path& images, MessageSink& messages,
                  Ballpark& park, EraAverages& baseline) {
    Ballpark read;
    if (!ReadOneRow(common, "KorvBallparks", "parkID = ?", {std::int64_t{parkID}},
                    [&read](RowReader& row) { ReadPark(row, read); })) {
        messages.Warn("Korv Ballparks", "Error reading Ballpark data - contact Tarvane");
        return false;
    }
    std::error_code ignored;
    if (!read.ParkImageLoc.empty() && std::filesystem::is_regular_file(images / read.ParkImageLoc, ignored))
        read.imagePath = (images / read.ParkImageLoc).string();
    park = std::move(read);
    baseline = {};
    const EraAverages own{park.HitAvg, park.SinglesAvg, park.DoublesAvg, park.TriplesAvg, park.HRAvg, 0, 0, 0};
    if (AllZero(own) || park.yearID == 9999) return true;
    ReadOneRow(common, "KorvYears", "EraName = ?", {fmt::format("{} Combined", park.yearID)}, [&](RowReader& row) {
        ReadHitAverages(row, baseline);
        baseline.PAFactor = row.Double("PAFactor");
    });
    return true;
}

bool LoadYearEffects(Database& common, const LeagueRules& rules, std::int32_t eraID, std::int32_t& normalizeEraID,
                     MessageSink& messages, YearEffects& effects, EraAverages& baseline) {
    if (!rules.UseYearEffects || eraID == 0) return true;
    YearEffects read;
    EraAverages own;
    std::int32_t rangeStart = 0;
    const bool found = ReadOneRow(common, "KorvYears", "EraId = ?", {std::int64_t{eraID}}, [&](RowReader& row) {
        read.EraID = row.Number<std::int32_t>("EraId");
        read.EraName = row.Text("EraName");
        read.yearID = row.Number<std::int16_t>("yearID");
        read.DefAdjustment = row.Number<std::int16_t>("DefAdjustment");
        row.Cells("Roll", read.Roll);
        rangeStart = row.Number<std::int32_t>("EraRangeStart");
        ReadHitAverages(row, own);
    });
    if (!found) {
        messages.Warn("Korv Year Effects", "Error reading Year Effect data - contact Tarvane");
        return false;
    }
    const std::int16_t year = read.yearID;
    if (normalizeEraID <= 0) {
        effects = std::move(read);
        baseline = kDefaultAverages;
        if (AllZero(own)) return true;
    }
    // A negative start of the range is the user's own choice of the era to measure against.
    const bool search = rangeStart == 0 && normalizeEraID == 0;
    const std::string where = search ? "EraRangeStart <= ?1 AND EraRangeEnd >= ?1 AND EraRangeStart > 0" : "EraId = ?1";
    const std::int64_t key = search ? year : rangeStart < 0 ? -rangeStart : normalizeEraID;
    ReadOneRow(common, "KorvYears", where, {key}, [&](RowReader& row) {
        const auto id = row.Number<std::int32_t>("EraId");
        ReadHitAverages(row, baseline);
        baseline.SO = row.Double("SOAvg");
        baseline.BB = row.Double("BBAvg");
        if (rangeStart == 0) normalizeEraID = id;
    });
    return true;
}

bool LoadDefensiveEra(Database& common, std::int32_t eraID, MessageSink& messages, DefensiveEra& era) {
    constexpr std::array<std::string_view, 6> kValue{"TenValue",      "ElevenValue",   "TwelveValue",
                                                     "ThirteenValue", "FourteenValue", "FifteenValue"};
    constexpr std::array<std::string_view, 6> kColor{"TenColor",      "ElevenColor",   "TwelveColor",
                                                     "ThirteenColor", "FourteenColor", "FifteenColor"};
    DefensiveEra read;
    const bool found = ReadOneRow(common, "DefensiveEras", "EraID = ?", {std::int64_t{eraID}}, [&](RowReader& row) {
        read.EraID = row.Number<std::int32_t>("EraID");
        read.EraName = row.Text("EraName");
        int n = 0;
        for (DefensiveEraRange& range : read.range) {
            range.StartRange = row.NumberOf<std::uint8_t>("StartRange", ++n);
            range.EndRange = row.NumberOf<std::uint8_t>("EndRange", n);
            for (std::size_t i = 0; i < range.cell.size(); ++i) {
                const std::string text = row.TextOf(kValue[i], n);
                range.cell[i] = {text.empty() ? " " : text, row.NumberOf<std::int32_t>(kColor[i], n)};
            }
        }
    });
    if (!found) {
        messages.Warn("Korv Defensive Eras", "Error reading Defensive Era data - contact Tarvane");
        return false;
    }
    era = std::move(read);
    return true;
}

bool LoadEraBaseline(Database& common, std::int32_t eraID, std::int16_t lgIdx, LeagueBaseline& baseline) {
    return ReadOneRow(common, "KorvYears", "EraId = ?", {std::int64_t{eraID}}, [&](RowReader& row) {
        baseline = {};
        baseline.EraID = eraID;
        baseline.lgIdx = lgIdx;
        baseline.PAFactor = row.Double("PAFactor");
        ReadPositionRates(row, "P", baseline.P);
        ReadPositionRates(row, "C", baseline.C);
        ReadPositionRates(row, "1B", baseline.B1);
        ReadPositionRates(row, "2B", baseline.B2);
        ReadPositionRates(row, "3B", baseline.B3);
        ReadPositionRates(row, "SS", baseline.SS);
        ReadPositionRates(row, "OF", baseline.OF);
        baseline.CPctPOSO = row.Double("CPctPOSO");
        baseline.BBAvg = row.Double("BBAvg");
        baseline.SOAvg = row.Double("SOAvg");
        baseline.HBPRate = row.Double("HBPRate");
        baseline.RBIAvg = row.Double("RBIAvg");
        baseline.AvgSOBFP = row.Double("AvgSOBFP");
        baseline.AvgBBBFP = row.Double("AvgBBBFP");
        baseline.AvgHBFP = row.Double("AvgHBFP");
        baseline.AvgHRBFP = row.Double("AvgHRBFP");
        baseline.AvgSPIPOutsGame = row.Number<std::int16_t>("AvgSPIPOutsGame");
        baseline.AvgRPIPOutsGame = row.Number<std::int16_t>("AvgRPIPOutsGame");
        baseline.AvgSPBFGame = row.Number<std::int16_t>("AvgSPBFGame");
        baseline.AvgRPBFGame = row.Number<std::int16_t>("AvgRPBFGame");
    });
}

std::vector<LeagueBaseline> LoadLeagueBaselines(Database& common, Database& season) {
    std::vector<LeagueBaseline> baselines;
    for (const League& league : LoadLeagues(season).leagues) {
        LeagueBaseline baseline;
        if (LoadEraBaseline(common, league.EraID, league.lgIdx, baseline)) baselines.push_back(baseline);
    }
    return baselines;
}

}  // namespace tarvane
