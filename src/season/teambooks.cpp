#include "season/teambooks.h"

namespace tarvane {

void AddResult(TeamBooks& books, const TeamGame& game, bool division, bool home) {
    if (!game.Won() && !game.Lost()) return;
    const bool won = game.Won();
    ++(won ? books.W : books.L);
    if (division) ++(won ? books.DivWins : books.DivLosses);
    if (home) ++(won ? books.HomeWins : books.HomeLosses);
    books.Pct = WinningPct(books.W, books.L);
}

void AddTeamGame(TeamBooks& books, const TeamGame& game) {
    books.RF += game.runs;
    books.RA += game.runsAgainst;
    Adder counts;
    TeamBattingColumns(game.batting, "", counts);
    TeamPitchingColumns(game.pitching, "", counts);
    FieldingColumns(game.fielding, "", counts);
    Adder::Into add = counts.To();
    TeamBattingColumns(books.batting, "", add);
    TeamPitchingColumns(books.pitching, "", add);
    FieldingColumns(books.fielding, "", add);
    books.PitcherAutoOuts += game.autoOuts;
    books.rates = RatesOf(books.batting);
    books.ERA = EarnedRunAverage(books.pitching.ER, books.pitching.IPOuts);
    books.WHIP = WhipOf(books.pitching.OppBB, books.pitching.OppHits, books.pitching.IPOuts);
    books.FieldingPct = FieldingPctOf(books.fielding);
}

}  // namespace tarvane
