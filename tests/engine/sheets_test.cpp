#include "scene.h"

namespace tarvane {
namespace {

constexpr std::int32_t kOtherWord = 4711;

// The pitcher's cell with what stands beside it in the park's and the year's column: which test comes first. The sheet
// that follows is P when the play is over.
TEST(PitcherSheet, OrderOfTests) {
    struct Case {
        const char* cell;
        std::int32_t color;
        const char *park, *year;
        Result result;
        SheetCode next;
    };
    const Case cases[]{
        // A fly of the park and a grounder of the year beat everything but the pitcher's own outs, the park first.
        {" ", kG, "F", "G", Result::F, SheetCode::P},
        {" ", kY, "F", " ", Result::F, SheetCode::P},
        {"X", kY, " ", "G", Result::G, SheetCode::P},
        {"E", kW, " ", "G", Result::G, SheetCode::P},
        {"WP", kY, "F", " ", Result::F, SheetCode::P},
        {"SF", kR, "F", "G", Result::F, SheetCode::P},
        {"G", kR, "F", " ", Result::G, SheetCode::P},
        {" ", kB, "F", "G", Result::K, SheetCode::P},
        {" ", kOtherWord, "F", " ", Result::F, SheetCode::P},
        // The letters of the two columns are not each other's.
        {" ", kG, "G", " ", Result::Swing, SheetCode::B},
        {" ", kG, " ", "F", Result::Swing, SheetCode::B},
        {" ", kG, "K", " ", Result::Swing, SheetCode::B},
        {" ", kG, " ", "K", Result::SwingK, SheetCode::B},
        // A year's K yields to D and 1+, beats the power cells, and touches green only.
        {"1+", kG, " ", "K", Result::SinglePlus, SheetCode::P},
        {"HR", kG, " ", "K", Result::SwingK, SheetCode::B},
        {"(hr)", kG, " ", "K", Result::SwingK, SheetCode::B},
        {"WP", kY, " ", "K", Result::WP, SheetCode::P},
        {"H", kY, " ", "K", Result::HBP, SheetCode::P},
        {"G", kR, " ", "K", Result::G, SheetCode::P},
        // A 1+ beside the chart turns a plain swing into a single, and nothing else.
        {" ", kG, "1+", " ", Result::SinglePlus, SheetCode::P},
        {" ", kG, " ", "1+", Result::SinglePlus, SheetCode::P},
        {"K", kG, "1+", " ", Result::SwingK, SheetCode::B},
        {"(HR)", kG, "1+", " ", Result::SwingHR, SheetCode::B},
        {"HR", kG, " ", "1+", Result::SwingHR, SheetCode::B},
        {" ", kY, "1+", "1+", Result::BB, SheetCode::P},
        // Yellow and white by their text, and unknown cells swing.
        {"BB", kY, " ", " ", Result::BB, SheetCode::P},
        {"PB", kY, " ", " ", Result::PB, SheetCode::P},
        {"X", kY, " ", " ", Result::YellowXInj, SheetCode::XI},
        {"E", kW, " ", " ", Result::E, SheetCode::P},
        {"E", kG, " ", " ", Result::Swing, SheetCode::B},
        {"2", kG, " ", " ", Result::Swing, SheetCode::B},
        {"zzz", kY, " ", " ", Result::Swing, SheetCode::B},
        {"G", kW, " ", " ", Result::Swing, SheetCode::B},
        {"zzz", kR, " ", " ", Result::F, SheetCode::P},
        {"G", kOtherWord, " ", " ", Result::Swing, SheetCode::B}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} in {} beside {} and {}", c.cell, c.color, c.park, c.year));
        Scene scene;
        scene.Pitcher(c.cell, c.color);
        scene.Park(c.park);
        scene.Year(c.year);
        scene.Roll();
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.state.sheet, c.next);
    }
}

// What pitcher, park and year of the first roll make of the batter's cell.
TEST(BatterSheet, EffectsOfTheFirstRoll) {
    struct Case {
        const char *pitcher, *park, *year, *cell;
        std::int32_t color;
        Result result;
    };
    const Case cases[]{{"K", " ", " ", "F", kR, Result::K},
                       {"K", " ", " ", " ", kY, Result::K},
                       {"K", " ", " ", "E", kW, Result::K},
                       {"K", " ", " ", "2", kG, Result::Double},
                       {" ", " ", "K", "G", kR, Result::K},
                       {"(HR)", " ", " ", "HR", kG, Result::SinglePlus},
                       {"(HR)", " ", "HR", "HR", kG, Result::SinglePlus},
                       {"HR", " ", " ", "1", kG, Result::HR},
                       {"HR", "(2)", " ", "2", kG, Result::HR},
                       {" ", "HR", " ", "(3)", kG, Result::HR},
                       {" ", "HR", " ", "F", kR, Result::F},
                       {" ", "(hr)", " ", "HR", kG, Result::SinglePlus},
                       {" ", "(2)", " ", "2*", kG, Result::SinglePlus},
                       {" ", "(2)", "3", "2", kG, Result::SinglePlus},
                       {" ", "(2)", " ", "1", kG, Result::Single},
                       {" ", "2", " ", "(1)", kG, Result::Double},
                       {" ", "2", "3", "1", kG, Result::Double},
                       {" ", "2", " ", "2*", kG, Result::DoubleAllScore},
                       {" ", "(3)", " ", "3", kG, Result::SinglePlus},
                       {" ", "(3)", "HR", "3", kG, Result::HR},
                       {" ", "3", " ", "1+", kG, Result::Triple},
                       {" ", " ", "3", "(2)", kG, Result::Triple},
                       {" ", "3", " ", "HR", kG, Result::HR},
                       {" ", "3", " ", "K", kB, Result::K},
                       {" ", " ", " ", "zzz", kG, Result::None},
                       {" ", " ", " ", "zzz", kW, Result::F},
                       {" ", " ", " ", "zzz", kY, Result::F},
                       {" ", " ", " ", "H", kY, Result::HBP},
                       {" ", " ", " ", "F", kOtherWord, Result::F},
                       {" ", " ", " ", "zzz", kR, Result::F}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} after {} {} {}", c.cell, c.pitcher, c.park, c.year));
        Scene scene;
        scene.Pitcher(c.pitcher, kGreenWord);
        scene.Park(c.park);
        scene.Year(c.year);
        scene.Roll();
        ASSERT_EQ(scene.state.sheet, SheetCode::B);
        scene.Park("HR");  // only the first roll's row of the columns counts
        scene.Year("HR");
        scene.Batter(c.cell, c.color);
        scene.Roll();
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.state.Outs, c.color != kG && c.result != Result::HBP ? 1 : 0);
    }
}

TEST(PitcherSheet, FatigueTakesOutsAway) {
    struct Case {
        bool tired, intermediate, outCells;
        const char* cell;
        std::int32_t color;
        int roll;
        Result result;
    };
    const Case cases[]{
        {true, false, true, "G", kR, 16, Result::Swing},      {true, false, true, "G", kR, 15, Result::G},
        {false, true, true, "G", kR, 20, Result::Swing},      {false, false, true, "G", kR, 20, Result::G},
        {true, false, true, " ", kB, 20, Result::SwingK},     {false, true, true, " ", kB, 12, Result::SwingK},
        {true, false, true, "D", kG, 14, Result::SinglePlus}, {false, true, false, "D", kG, 13, Result::SinglePlus},
        {false, true, false, "D", kG, 14, Result::Swing},     {false, true, true, "D", kG, 15, Result::Swing},
        {false, false, false, "D", kG, 13, Result::Swing},    {true, false, true, " ", kY, 20, Result::BB},
        {true, true, true, "H", kY, 20, Result::HBP}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} at {} tired {} {}", c.cell, c.roll, c.tired, c.intermediate));
        Scene scene;
        scene.Pitcher(c.cell, c.color);
        TeamState& defence = scene.state[Side::Home];
        defence.AutoOuts = AutoOutsFromTotal(defence.DRTotal = -10);
        defence.PitcherTired = c.tired;
        defence.PitcherIntermediateTired = c.intermediate && !c.tired;
        defence.PitcherHasOutCells = c.outCells;
        scene.Roll(c.roll);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
    }
}

TEST(PitcherSheet, DefenceCellAndItsFielder) {
    struct Case {
        bool place;
        const char* fielder;
        int roll, total;
        Result result;
        const char* bases;
    };
    const Case cases[]{{true, "CF", 13, 20, Result::F, "1--:"},      {true, "SS", 13, 20, Result::FC, "b--:"},
                       {false, "CF", 13, 20, Result::FC, "b--:"},    {true, "CF", 14, 20, Result::Swing, "1--:"},
                       {true, "CF", 16, 200, Result::Swing, "1--:"}, {true, "1B", 13, 20, Result::G, "b--:"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} {} at {}", c.place, c.fielder, c.roll));
        LeagueRules rules = Scene::PlainRules();
        rules.AutoOutsForOF = c.place;
        Scene scene(rules);
        scene.Put("1--");
        scene.Pitcher("D", kGreenWord);
        scene.data.compiled.Fielding.fill(Scene::Filled(c.fielder, kWhiteWord));
        TeamState& defence = scene.state[Side::Home];
        defence.AutoOuts = AutoOutsFromTotal(defence.DRTotal = static_cast<std::int16_t>(c.total));
        scene.Roll(c.roll);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.Bases(), c.bases);
        const bool out = c.result != Result::Swing;
        EXPECT_EQ(scene.state.Outs, out ? 1 : 0);
        EXPECT_EQ(scene.state.play.GreatPlay, out);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].AutoOuts, 0);
        if (out && c.place) {
            EXPECT_EQ(scene.Fielder(PositionFromText(c.fielder)).GreatDefensivePlays, 1);
        }
    }
}

TEST(PitcherSheet, DefensiveEraReplacesTheFirstSixRolls) {
    LeagueRules rules = Scene::PlainRules();
    rules.DefChartEraID = 1;
    Scene scene(rules);
    scene.Pitcher("K", kGreenWord);
    for (std::size_t range = 0; range < 18; ++range) {
        auto& era = scene.data.defensiveEra.range[range];
        era.StartRange = static_cast<std::uint8_t>(range * 10);
        era.EndRange = static_cast<std::uint8_t>(range * 10 + 9);
        scene.data.eraCells[range].fill(CompileCell({range == 2 ? "F" : "WP", range == 2 ? kR : kY}));
    }
    scene.state[Side::Home].DRTotal = 25;
    scene.state[Side::Home].AutoOuts = AutoOutsFromTotal(25);
    scene.Roll(15);
    EXPECT_EQ(scene.state.play.PlayResult, Result::F);
    scene.Roll(16);
    EXPECT_EQ(scene.state.play.PlayResult, Result::SwingK);
    scene.Batter("1", kGreenWord);
    scene.Roll();
    scene.state[Side::Home].DRTotal = -3;  // a negative total reads as none
    scene.state[Side::Home].AutoOuts = 0;
    scene.Roll(10);
    EXPECT_EQ(scene.state.play.PlayResult, Result::WP);
}

TEST(RatingTest, BelowTheRatingItStands) {
    struct Case {
        std::int32_t color;
        int rating, roll;
        Result result;
        bool tested;
    };
    const Case cases[]{{kB, 25, 24, Result::K, true},     {kB, 25, 25, Result::Swing, true},
                       {kB, 40, 39, Result::K, false},    {kY, 25, 24, Result::BB, true},
                       {kY, 25, 25, Result::Swing, true}, {kY, 40, 39, Result::BB, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} rating {} roll {}", c.color, c.rating, c.roll));
        LeagueRules rules = Scene::PlainRules();
        rules.BatterBBSORating = true;
        Scene scene(rules);
        scene.Pitcher(" ", c.color);
        auto& ratings = scene.data.team[Side::Visitor].batterCharts[0];
        ratings.BBRating = static_cast<std::uint8_t>(c.color == kY ? c.rating : 40);
        ratings.SORating = static_cast<std::uint8_t>(c.color == kB ? c.rating : 40);
        scene.Roll();
        EXPECT_EQ(scene.state.sheet == SheetCode::BBSO, c.tested);
        if (c.tested) scene.Roll(c.roll);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.state.sheet, c.result == Result::Swing ? SheetCode::B : SheetCode::P);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].AutoOuts, c.result == Result::K ? 1 : 0);
        if (c.result != Result::Swing) continue;
        scene.Batter(" ", kY);  // a walk on the batter's own chart is not tested again
        scene.Roll();
        EXPECT_EQ(scene.state.play.PlayResult, Result::BB);
    }
}

TEST(BatterSheet, WhichChartIsRead) {
    Scene scene;
    auto& charts = scene.data.team[Side::Visitor];
    charts.batterCharts[0].vsL = Scene::Filled("3", kG);
    charts.batterCharts[0].vsR = Scene::Filled("2", kG);
    charts.pitcherCharts[0].Bat = Scene::Filled("HR", kG);
    const auto hit = [&](std::int32_t throws, std::uint8_t slot) {
        Scene copy = scene;
        copy.state[Side::Home].PitcherThrows = throws;
        copy.state[Side::Visitor].BatterSlot = slot;
        copy.Roll();
        copy.Roll();
        return copy.state.play.PlayResult;
    };
    EXPECT_EQ(hit(kRightHand, 1), Result::Double);
    EXPECT_EQ(hit(kLeftHand, 1), Result::Triple);
    EXPECT_EQ(hit(kLeftHand, 9), Result::HR);
}

// --- Errors ---

TEST(Errors, RatingsDecide) {
    struct Case {
        const char* fielder;
        char letter;
        int column;
        bool stands;
    };
    // The columns at which an error stands: A 5, F 2, V 1 2 4 5, Z all. Pitchers and catchers are tested as V.
    const Case cases[]{{"SS", 'A', 1, false}, {"SS", 'A', 5, true},  {"LF", 'F', 2, true}, {"LF", 'F', 3, false},
                       {"3B", 'Z', 3, true},  {"3B", 'I', 3, false}, {"P", 'Z', 3, false}, {"P", 'A', 1, true},
                       {"C", 'A', 4, true},   {"C", 'Z', 3, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} {} column {}", c.fielder, c.letter, c.column));
        LeagueRules rules = Scene::PlainRules();
        rules.UseErrorRatings = true;
        Scene scene(rules);
        const Position by = PositionFromText(c.fielder);
        for (LineupSlot& slot : scene.state[Side::Home].lineup)
            if (slot.position == by) slot.SlotErrorRating = c.letter;
        scene.data.compiled.Fielding.fill(Scene::Filled(c.fielder, kWhiteWord));
        scene.values.ErrorColumn = static_cast<std::uint8_t>(c.column);
        scene.Bat("E", kWhiteWord);
        const Result cancelled = IsOutfielder(by) ? Result::F : Result::G;
        EXPECT_EQ(scene.state.play.PlayResult, c.stands ? Result::E : cancelled);
        EXPECT_EQ(scene.state.Outs, c.stands ? 0 : 1);
        EXPECT_EQ(scene.Fielder(by).Errors, c.stands ? 1 : 0);
        EXPECT_EQ(scene.state[Side::Home].Errors, c.stands ? 1 : 0);
    }
}

TEST(Errors, OutsThatBecomeErrors) {
    struct Case {
        bool ratings, never;
        int roll;
        bool stands, error;
    };
    const Case cases[]{{true, false, 17, true, true},   {true, false, 19, true, true}, {true, false, 18, true, false},
                       {true, false, 17, false, false}, {true, true, 17, true, false}, {false, false, 17, true, false}};
    for (const bool pitcherSheet : {true, false})
        for (const Case& c : cases) {
            SCOPED_TRACE(fmt::format("sheet {} ratings {} never {} roll {}", pitcherSheet, c.ratings, c.never, c.roll));
            LeagueRules rules = Scene::PlainRules();
            rules.UseErrorRatings = c.ratings;
            rules.DoNotCauseErrorsFromOuts = c.never;
            Scene scene(rules);
            for (auto& row : scene.data.compiled.ErrorStands) row.fill(c.stands);
            scene.values.ErrorRoll = static_cast<std::uint8_t>(c.roll);
            scene.Put("--3");
            if (pitcherSheet) scene.Pitcher("SF", kR);
            if (pitcherSheet)
                scene.Roll();
            else
                scene.Bat("SF", kR);
            EXPECT_EQ(scene.state.play.PlayResult, c.error ? Result::E : Result::SF);
            EXPECT_EQ(scene.Bases(), c.error ? "b--:3" : "---:3");
            EXPECT_EQ(scene.state.Outs, c.error ? 0 : 1);
            EXPECT_EQ(scene.EarnedRuns(), c.error ? 0 : 1);
            EXPECT_EQ(scene.Fielder(Position::SS).Errors, c.error ? 1 : 0);
            EXPECT_EQ(scene.state.play.AutoOutPlay, pitcherSheet && !c.error);
        }
}

TEST(Fielding, WordsForTheBattersSideAndBallsThatReachTheOutfield) {
    struct Case {
        const char* cell;
        std::int32_t bats, throws;
        const char* result;
        int flyRoll;
        Position by;
    };
    const Case cases[]{{"IC", kLeftHand, kRightHand, "G", 10, Position::B1},
                       {"IC", kRightHand, kRightHand, "G", 10, Position::B3},
                       {"IM", kSwitchHitter, kRightHand, "G", 10, Position::B2},
                       {"IM", kSwitchHitter, kLeftHand, "G", 10, Position::SS},
                       {"OF", kLeftHand, kRightHand, "F", 10, Position::RF},
                       {"OF", kRightHand, kLeftHand, "F", 10, Position::LF},
                       {"3B", kRightHand, kRightHand, "(1)", 90, Position::LF},
                       {"1B", kRightHand, kRightHand, "(2)", 10, Position::RF},
                       {"C", kRightHand, kRightHand, "(1+)", 90, Position::CF},
                       {"SS", kRightHand, kRightHand, "(F)", 50, Position::CF},
                       {"LF", kRightHand, kRightHand, "(F)", 51, Position::LF},
                       {"LF", kRightHand, kRightHand, "(F)", 76, Position::RF},
                       {"CF", kRightHand, kRightHand, "2", 90, Position::CF}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} {} {}", c.cell, c.bats, c.result));
        Scene scene;
        scene.data.compiled.Fielding.fill(Scene::Filled(c.cell, kWhiteWord));
        scene.state.AtBat().bats = c.bats;
        scene.state[Side::Home].PitcherThrows = c.throws;
        scene.values.FlyFielderRoll = static_cast<std::uint8_t>(c.flyRoll);
        const std::string text = c.result;
        const bool out = text == "G" || text == "F" || text == "(F)";
        scene.Bat(text, out ? kR : kG);
        EXPECT_EQ(scene.state.play.FieldedBy, c.by);
    }
}

// Each kind of play has its own row of the fielding chart.
TEST(Fielding, RowByKindOfPlay) {
    struct Case {
        const char* text;
        std::int32_t color;
        int kindRoll;
        bool pitcherSheet;
        std::size_t row;
    };
    const Case cases[]{{"G", kR, 20, false, 0},  {"DP", kR, 20, true, 0}, {"F", kR, 20, false, 1},
                       {"1", kG, 20, false, 4},  {"1+", kG, 20, true, 5}, {"HR", kG, 20, false, 5},
                       {"SF", kR, 20, false, 1}, {"E", kW, 20, false, 6}, {"E", kW, 24, false, 6},
                       {"E", kW, 12, false, 5},  {"E", kW, 23, false, 5}, {"E", kW, 12, true, 6}};
    constexpr std::array<const char*, 7> kFielders{"P", "C", "1B", "2B", "3B", "SS", "RF"};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} kind {} pitcher's {}", c.text, c.kindRoll, c.pitcherSheet));
        LeagueRules rules = Scene::PlainRules();
        rules.SpecialErrorRule = true;
        Scene scene(rules);
        for (std::size_t row = 0; row < 7; ++row)
            scene.data.compiled.Fielding[row] = Scene::Filled(kFielders[row], kWhiteWord);
        scene.values.ErrorKindRoll = static_cast<std::uint8_t>(c.kindRoll);
        if (c.pitcherSheet) scene.Pitcher(c.text, c.color);
        if (c.pitcherSheet)
            scene.Roll();
        else
            scene.Bat(c.text, c.color);
        EXPECT_EQ(scene.state.play.FieldedBy, PositionFromText(kFielders[c.row]));
    }
}

}  // namespace
}  // namespace tarvane
