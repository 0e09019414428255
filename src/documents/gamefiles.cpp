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

}  // namespace tarvane
