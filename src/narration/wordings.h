#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

// What a sentence can name. The texts of the wordings write them in braces: {batter}.
enum class Name : std::uint8_t {
    Batter,
    Pitcher,
    Catcher,
    Fielder,
    Runner,
    ErrorBy,
    Hurt,
    Player,
    Position,
    PositionName,
    Line,
    From,
    Base,
    Team,
    Opponents,
    SideTeam,
    Visitors,
    Home,
    VisitingPitcher,
    HomePitcher,
    Park,
    Year,
    Runs,
    OtherRuns,
    Leader,
    Trailer,
    Scored,
    ScoredShort,
    Inning,
    Innings
};
inline constexpr std::size_t kNameCount = static_cast<std::size_t>(Name::Innings) + 1;

// A sentence in pieces: text, name, text, name, ..., text.
struct Sentence {
    std::vector<std::string> text;  // one more than names
    std::vector<Name> name;
};

// A situation that the game can tell of, and into how many equal ranges the narration roll is split for it.
struct Situation {
    std::string_view key;
    int split = 1;
};

// All situations, in the order of the engine's tags. The wordings file must hold exactly these.
std::span<const Situation> Situations();

// The wordings of the play-by-play, read from a text file and checked against the list of situations.
class Wordings {
  public:
    // Throws UserError with file and line for an unknown or missing situation, a split or a number of lines that
    // doesn't fit, an unknown name in braces, or a wording that is no whole sentence.
    static Wordings Load(const std::filesystem::path& file);
    static Wordings Parse(std::string_view content, std::string_view fileName);

    // The wordings of one range: index is the place of the situation in Situations(), narrationRoll 1 to 100.
    const std::vector<Sentence>& For(std::size_t situation, int narrationRoll) const;
    // The place of a situation; the key must be one of the list.
    static std::size_t IndexOf(std::string_view key);

    std::size_t SentenceCount() const;

  private:
    std::vector<std::vector<std::vector<Sentence>>> ranges_;  // [situation][range][wording]
};

// Which of split ranges a roll of 1 to 100 falls into: at 50; at 33 and 66; at 25, 50 and 75.
constexpr int RangeOf(int narrationRoll, int split) {
    const int range = (narrationRoll - 1) / (100 / split);
    return range < split ? range : split - 1;
}

}  // namespace tarvane
