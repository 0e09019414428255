#include "ui/gamekeeper.h"

#include "data/rules.h"
#include "season/posting.h"

namespace tarvane {

KeepChoices KeepChoicesOf(const GameSettings& settings, const ScreenSettings& screens) {
    KeepChoices choices;
    choices.stats = settings.SaveStats;
    choices.boxScore = settings.SaveBoxScore;
    choices.scoreSheet = settings.SaveScoreSheet;
    choices.format = settings.ResultsFormat.empty() ? 'H' : settings.ResultsFormat.front();
    choices.condensed = screens.CondensedBoxScore;
    return choices;
}

std::vector<std::string> KeepGame(Session& session, const PreparedGame& game, const GameState& state,
                                  const KeepChoices& choices) {
    if (!game.scheduled || !choices.stats) return {};
    Database& season = session.Seasons().Season();
    GamePoster poster(season);
    GameToPost posting;
    posting.GameID = game.scheduled->GameID;
    posting.daysReduced = game.daysReduced;
    GameData data = game.data;  // the posting brings its rosters up to date; the game on the screen stays as played
    return poster.Post(posting, data, state).messages;
}

}  // namespace tarvane
