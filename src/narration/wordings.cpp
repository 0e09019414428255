#include "narration/wordings.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <optional>

#include "base/error.h"
#include "base/file.h"
#include "base/text.h"

namespace tarvane {

namespace {

constexpr std::array<std::string_view, kNameCount> kNames{
    "batter",          "pitcher",     "catcher", "fielder", "runner", "errorBy",   "hurt",     "player",   "position",
    "positionName",    "side",        "from",    "base",    "team",   "opponents", "sideTeam", "visitors", "home",
    "visitingPitcher", "homePitcher", "park",    "year",    "runs",   "otherRuns", "leader",   "trailer",  "scored",
    "scoredShort",     "inning",      "innings"};

constexpr Situation kSituations[] = {{"Welcome", 1},
                                     {"WelcomeBack", 1},
                                     {"PitcherThrow", 4},
                                     {"PitcherTired", 2},
                                     {"PitcherIntermediateTired", 2},
                                     {"Pitcher2ndWind", 2},
                                     {"GroundOut", 3},
                                     {"GroundOut2.second", 2},
                                     {"GroundOut2.secondEnds", 2},
                                     {"GroundOut2.home", 2},
                                     {"GroundOut2.unassisted", 2},
                                     {"GroundOut2.first", 2},
                                     {"GroundOut2.nice", 2},
                                     {"GroundOut2.moved", 2},
                                     {"DoublePlay", 3},
                                     {"DoublePlay2", 2},
                                     {"FlyOut", 4},
                                     {"FlyOut.infield", 4},
                                     {"FlyOut2", 2},
                                     {"FlyOut2.nice", 2},
                                     {"Error.outfield", 3},
                                     {"Error.infield", 3},
                                     {"Error2.outfield", 2},
                                     {"Error2.infield", 2},
                                     {"Error2B2.outfield", 2},
                                     {"Error2B2.infield", 2},
                                     {"Error2B2.second", 2},
                                     {"Error2B2.home", 2},
                                     {"Error3B2", 2},
                                     {"OutIsError", 2},
                                     {"ErrorIsOut", 2},
                                     {"ParkResultHit", 3},
                                     {"YearResultHit", 3},
                                     {"ParkResultOut", 3},
                                     {"YearResultOut", 3},
                                     {"ParkResultIncreased", 3},
                                     {"YearResultIncreased", 3},
                                     {"ParkResultReduced", 3},
                                     {"YearResultReduced", 3},
                                     {"YearResultGreenK", 3},
                                     {"PitcherResultIncreased", 3},
                                     {"PitcherResultReduced", 3},
                                     {"PitcherResult.K", 3},
                                     {"PitcherResult.BB", 4},
                                     {"PitcherResult.IBB", 2},
                                     {"PitcherResult.HBP", 2},
                                     {"PitcherResult.WP", 2},
                                     {"PitcherResult.WP.empty", 2},
                                     {"PitcherResult.PB", 2},
                                     {"PitcherResult.PB.empty", 2},
                                     {"PitcherResult.BK", 1},
                                     {"PitcherResult.BK.empty", 1},
                                     {"Single", 3},
                                     {"Single.infield", 3},
                                     {"Single2", 2},
                                     {"Single2.infield", 2},
                                     {"ExtraBaseHit", 2},
                                     {"ExtraBaseHit.line", 2},
                                     {"ExtraBaseHit2.double", 2},
                                     {"ExtraBaseHit2.triple", 2},
                                     {"HomeRun", 2},
                                     {"HomeRun.line", 2},
                                     {"HomeRun2", 3},
                                     {"HomeRunRBI.1", 2},
                                     {"HomeRunRBI.2", 2},
                                     {"HomeRunRBI.3", 2},
                                     {"HomeRunRBI.4", 2},
                                     {"BuntFoul", 2},
                                     {"BuntFoul.squeeze", 2},
                                     {"BuntFoulOut", 2},
                                     {"BuntMiss", 2},
                                     {"BuntMiss2.safe", 2},
                                     {"BuntMiss2.out", 2},
                                     {"BuntSingle", 3},
                                     {"BuntSingle2", 2},
                                     {"BuntSingle2.choice", 2},
                                     {"BuntSingle2.error", 2},
                                     {"BuntFlyOut", 3},
                                     {"BuntFlyOut2", 2},
                                     {"BuntFlyOut2.doubled", 2},
                                     {"BuntGroundOut", 3},
                                     {"BuntGroundOut2", 2},
                                     {"BuntGroundOut2.ground", 2},
                                     {"BuntGroundOut2.second", 2},
                                     {"BuntGroundOut2.home", 2},
                                     {"BuntDoublePlay", 3},
                                     {"BuntDoublePlay2", 2},
                                     {"Steal", 3},
                                     {"Steal2.safe", 2},
                                     {"Steal2.error", 2},
                                     {"Steal2.saved", 2},
                                     {"Steal2.out", 2},
                                     {"PickOff", 2},
                                     {"MDPlay", 2},
                                     {"MDPlay.home", 2},
                                     {"MDSafe", 2},
                                     {"MDSafe.home", 2},
                                     {"MDStar", 2},
                                     {"MDStar.runners", 2},
                                     {"MDErr", 2},
                                     {"MDSafeErr", 2},
                                     {"MDOut", 2},
                                     {"MDOut.home", 2},
                                     {"PossibleInjury", 2},
                                     {"PossibleInjury.unknown", 2},
                                     {"PossibleInjury2", 2},
                                     {"InjuryResult", 2},
                                     {"EndOfInningMiddle.tied", 2},
                                     {"EndOfInningMiddle.lead", 2},
                                     {"EndOfInning.tied", 2},
                                     {"EndOfInning.lead", 2},
                                     {"RunsScored.count", 2},
                                     {"RunsScored.lead", 2},
                                     {"RunsScored.tied", 2},
                                     {"RunsScored.other", 2},
                                     {"RunsScored.sacrifice", 1},
                                     {"WalkOff.single", 1},
                                     {"WalkOff.extra", 1},
                                     {"WalkOff.homer", 1},
                                     {"WalkOff.other", 1},
                                     {"GameOver", 2},
                                     {"PinchHitter", 2},
                                     {"PinchRunner", 2},
                                     {"NewPitcher", 2},
                                     {"DefensiveChange", 2}};

// The file under reading, for messages.
struct Place {
    std::string_view file;
    int line = 0;
};

[[noreturn]] void Fail(const Place& place, const std::string& what) {
    throw UserError(fmt::format("{}, line {}: {}", place.file, place.line, what));
}

Name NameOf(std::string_view text, const Place& place) {
    const auto found = std::find(kNames.begin(), kNames.end(), text);
    if (found == kNames.end()) Fail(place, fmt::format("nothing is called {{{}}} in the play-by-play", text));
    return static_cast<Name>(found - kNames.begin());
}

Sentence ParseSentence(std::string_view text, const Place& place) {
    text = Trim(text);
    if (text.empty()) Fail(place, "an empty wording");
    if (std::string_view(".!?").find(text.back()) == std::string_view::npos)
        Fail(place, fmt::format("a wording must end a sentence: {}", text));
    Sentence sentence;
    while (true) {
        const auto open = text.find('{');
        sentence.text.emplace_back(text.substr(0, open));
        if (open == std::string_view::npos) return sentence;
        const auto close = text.find('}', open);
        if (close == std::string_view::npos) Fail(place, "a brace is not closed");
        sentence.name.push_back(NameOf(text.substr(open + 1, close - open - 1), place));
        text.remove_prefix(close + 1);
    }
}

std::vector<Sentence> ParseRange(std::string_view line, const Place& place) {
    std::vector<Sentence> wordings;
    for (std::size_t start = 0; start <= line.size();) {
        const auto bar = std::min(line.find('|', start), line.size());
        wordings.push_back(ParseSentence(line.substr(start, bar - start), place));
        start = bar + 1;
    }
    return wordings;
}

std::optional<std::size_t> FindSituation(std::string_view key) {
    for (std::size_t i = 0; i < std::size(kSituations); ++i)
        if (kSituations[i].key == key) return i;
    return std::nullopt;
}

// "[GroundOut] 3": the place of the situation.
std::size_t ParseHeading(std::string_view line, const Place& place) {
    const auto close = line.find(']');
    if (close == std::string_view::npos) Fail(place, "a heading without its closing bracket");
    const std::string_view key = line.substr(1, close - 1);
    const auto situation = FindSituation(key);
    if (!situation) Fail(place, fmt::format("no such situation: {}", key));
    const auto split = ParseInt(line.substr(close + 1));
    if (split != kSituations[*situation].split)
        Fail(place, fmt::format("{} is split into {}", key, kSituations[*situation].split));
    return *situation;
}

}  // namespace

std::span<const Situation> Situations() {
    return kSituations;
}

Wordings Wordings::Load(const std::filesystem::path& file) {
    return Parse(ReadFile(file), file.string());
}

Wordings Wordings::Parse(std::string_view content, std::string_view fileName) {
    Wordings wordings;
    wordings.ranges_.resize(std::size(kSituations));
    std::optional<std::size_t> current;
    Place place{fileName, 0};
    while (!content.empty()) {
        const auto end = std::min(content.find('\n'), content.size());
        const std::string_view line = Trim(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
        ++place.line;
        if (line.empty() || line.front() == '#') continue;
        if (line.front() == '[') {
            current = ParseHeading(line, place);
            if (!wordings.ranges_[*current].empty()) Fail(place, "this situation stands twice");
        } else if (!current) {
            Fail(place, "a wording before the first heading");
        } else {
            wordings.ranges_[*current].push_back(ParseRange(line, place));
        }
    }
    for (std::size_t i = 0; i < std::size(kSituations); ++i)
        if (wordings.ranges_[i].size() != static_cast<std::size_t>(kSituations[i].split))
            throw UserError(fmt::format("{}: {} needs {} lines of wordings and has {}", fileName, kSituations[i].key,
                                        kSituations[i].split, wordings.ranges_[i].size()));
    return wordings;
}

const std::vector<Sentence>& Wordings::For(std::size_t situation, int narrationRoll) const {
    const auto& ranges = ranges_[situation];
    return ranges[static_cast<std::size_t>(RangeOf(narrationRoll, static_cast<int>(ranges.size())))];
}

std::size_t Wordings::IndexOf(std::string_view key) {
    static const std::map<std::string_view, std::size_t> places = [] {
        std::map<std::string_view, std::size_t> all;
        for (std::size_t i = 0; i < std::size(kSituations); ++i) all.emplace(kSituations[i].key, i);
        return all;
    }();
    return places.at(key);
}

std::size_t Wordings::SentenceCount() const {
    std::size_t count = 0;
    for (const auto& ranges : ranges_)
        for (const auto& range : ranges) count += range.size();
    return count;
}

}  // namespace tarvane
