#include "documents/gamefiles.h"

#include <fmt/core.h>

#include <system_error>

#include "base/error.h"
#include "base/file.h"

namespace tarvane {

namespace {

std::string Kind(const LeagueRules& rules) {
    if (!rules.TourneyMode || rules.TourneyType.empty()) return {};
    return rules.TourneyType == "P" ? "PostSeason" : "Tourney";
}

// The team's picture as a page in the folder finds it; empty without one.
std::string Logo(const GameFilesChoice& choice, const Team& team, const std::filesystem::path& folder) {
    std::error_code error;
    if (choice.teamImages.empty() || team.ImageFile.empty()) return {};
    const std::filesystem::path file = choice.teamImages / team.ImageFile;
    if (!std::filesystem::is_regular_file(file, error)) return {};
    return std::filesystem::proximate(file, folder, error).generic_string();
}

}  // namespace

GameFileNames NameGameFiles(const GameFilesChoice& choice, const LeagueRules& rules, const GameData& data, int number) {
    const std::string teams =
        fmt::format("{}@{}{}{}", data[Side::Visitor].roster.team.teamID, data[Side::Home].roster.team.teamID, number,
                    choice.format == 'T' ? ".txt" : ".htm");
    GameFileNames names;
    if (choice.boxScore) names.boxScore = Kind(rules) + "BoxScore" + teams;
    if (choice.scoreSheet) names.scoreSheet = Kind(rules) + "ScoreSheet" + teams;
    return names;
}

void WriteGameFiles(const std::filesystem::path& folder, const GameFileNames& names, const GameFilesChoice& choice,
                    const BoxDocument& box, const ScoreSheet& sheet) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw UserError(fmt::format("The folder {} can't be made: {}.", folder.string(), error.message()));
    const bool text = choice.format == 'T';
    if (choice.boxScore)
        WriteFile(folder / names.boxScore, text ? BoxScoreText(box, choice.style) : BoxScoreHtml(box, choice.style));
    if (choice.scoreSheet)
        WriteFile(folder / names.scoreSheet, text ? ScoreSheetText(sheet, box) : ScoreSheetHtml(sheet, box));
}

GameFileNames KeepGameFiles(Database& season, const std::filesystem::path& folder, const GameFilesChoice& choice,
                            const FinishedGame& game) {
    if (!choice.Any()) return {};
    Statement number = season.Prepare("SELECT coalesce(NextResultsFile, 1) FROM LeagueRules");
    const GameFileNames names =
        NameGameFiles(choice, game.data.rules, game.data, number.Step() ? static_cast<int>(number.Int(0)) : 1);
    BoxDocument box = MakeBoxDocument(game.data, game.state, game.seconds);
    for (const Side side : kBothSides) box.side[side].logo = Logo(choice, game.data[side].roster.team, folder);
    WriteGameFiles(folder, names, choice, box, game.sheet);
    return names;
}

}  // namespace tarvane
