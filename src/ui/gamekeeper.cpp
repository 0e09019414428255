#include "ui/gamekeeper.h"

#include "base/error.h"
#include "data/rules.h"
#include "savegame/savefile.h"
#include "season/posting.h"

namespace tarvane {

KeepChoices KeepChoicesOf(const GameSettings& settings, const ScreenSettings& screens) {
    KeepChoices choices;
    choices.stats = settings.SaveStats;
    choices.files.boxScore = settings.SaveBoxScore;
    choices.files.scoreSheet = settings.SaveScoreSheet;
    choices.files.format = settings.ResultsFormat == "T" ? 'T' : 'H';
    choices.files.style.condensed = screens.CondensedBoxScore;
    return choices;
}

std::vector<std::string> KeepGame(Session& session, const PlayedGame& game, const KeepChoices& choices) {
    Database& season = session.Seasons().Season();
    std::vector<std::string> missing;
    GameFileNames names;
    try {
        names = KeepGameFiles(season, session.Paths().GameResults(session.Seasons().ActiveSeason()), choices.files,
                              game.Facts());
    } catch (const UserError& failure) {
        missing.push_back(failure.what());
    }
    if (!game.setup->scheduled || !choices.stats) {
        if (choices.files.Any()) season.Execute(kCountResultsFile);
        return missing;
    }
    GamePoster poster(season);
    GameToPost posting;
    posting.GameID = game.setup->scheduled->GameID;
    posting.daysReduced = game.setup->daysReduced;
    posting.resultsFile1 = names.boxScore;
    posting.resultsFile2 = names.scoreSheet;
    GameData data =
        game.setup->data;  // the posting brings its rosters up to date; the game on the screen stays as played
    if (!game.resumedFrom.empty()) TakeSeasonFigures(season, data, posting.daysReduced);
    const PostingReport report = poster.Post(posting, data, game.state);
    missing.insert(missing.end(), report.messages.begin(), report.messages.end());
    return missing;
}

}  // namespace tarvane
