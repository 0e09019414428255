#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "records/cell.h"

namespace tarvane {

// League averages per plate appearance, against which factors are computed.
struct EraAverages {
    double Hit = 0, Singles = 0, Doubles = 0, Triples = 0, HR = 0, SO = 0, BB = 0, PAFactor = 0;
};

// The averages that hold when no era is known.
inline constexpr EraAverages kDefaultAverages{0.233315368, 0.170826929, 0.038935589, 0.00853307,
                                              0.016487172, 0.118718465, 0.084097025, 0};

// A row of KorvBallparks. yearID 9999 marks an average park. Distances in feet, factors with 1.0 neutral.
struct Ballpark {
    std::int32_t parkID = 0;
    std::string Stadium, LOCATION;
    std::int32_t Capacity = 0;
    std::int16_t yearID = 9999;
    std::int16_t LFFence = 315, CFFence = 400, RFFence = 315, AlleyLF = 370, AlleyRF = 370;
    double HitRate = 1, SinglesRate = 1, DoublesRate = 1, TriplesRate = 1, HRRate = 1;
    double HitAvg = 0, SinglesAvg = 0, DoublesAvg = 0, TriplesAvg = 0, HRAvg = 0;  // per at bat; 0: unknown
    std::int16_t DefAdjustment = 0, PitcherTiredAdjustment = 0, SecondWindAdjustment = 0;
    ChartCells Roll{};
    std::string ParkImageLoc, imagePath;
    // Where people stand on the picture: nine fielders, the batter left and right, the runners; top and left in twips.
    std::array<std::int32_t, 9> PosTop{}, PosLeft{};
    std::int32_t PosBatterLTop = 0, PosBatterLLeft = 0, PosBatterRTop = 0, PosBatterRLeft = 0;
    std::array<std::int32_t, 3> PosRunnerTop{}, PosRunnerLeft{};
};

// The year chart in force: part of a row of KorvYears.
struct YearEffects {
    std::int32_t EraID = 0;
    std::string EraName;
    std::int16_t yearID = 0;
    std::int16_t DefAdjustment = 0;
    ChartCells Roll{};
};

// A row of DefensiveEras: what rolls 10 to 15 of a pitcher's chart hold for each range of the fielding team's total.
struct DefensiveEraRange {
    std::uint8_t StartRange = 0, EndRange = 0;
    std::array<ChartCell, 6> cell{};  // rolls 10 to 15
};
struct DefensiveEra {
    std::int32_t EraID = 0;
    std::string EraName;
    std::array<DefensiveEraRange, 18> range{};
};

}  // namespace tarvane
