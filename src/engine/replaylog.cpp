#include "engine/replaylog.h"

#include <fmt/format.h>

#include <charconv>
#include <type_traits>

#include "base/error.h"

namespace tarvane {

namespace {

constexpr int kReplayFormat = 1;
constexpr std::string_view kReplayHead = "tarvane-replay";

constexpr std::array<std::string_view, kStateParts> kPartTexts{
    "the situation",       "the play under way",    "the injuries",         "the Visitors' state",
    "the Visitors' lines", "the Home team's state", "the Home team's lines"};

// --- Writing ---

std::string HashText(const StateHash& hash) {
    std::string text;
    for (const std::uint32_t part : hash) text += fmt::format(" {:08x}", part);
    return text;
}

std::string ValuesText(const PlayValues& v) {
    return fmt::format("{} {} {} {} {} {} {} {} {} {} {}", v.NarrationRoll, v.RunnerRoll, v.CoverRoll, v.FieldingRoll,
                       v.ErrorRoll, v.ErrorColumn, v.FlyFielderRoll, v.ErrorSpotRoll, v.SpareRoll, v.InfieldRoll,
                       v.ErrorKindRoll);
}

std::string PlayerText(PlayerRef player) {
    return player.Nobody() ? "-" : fmt::format("{}{}", player.type, player.index);
}

std::string LineupText(const LineupInput& lineup) {
    std::string text = fmt::format("lineup {} {}", SideLetter(lineup.side), PlayerText(lineup.pitcher));
    for (std::size_t i = 0; i < lineup.player.size(); ++i)
        text += fmt::format(" {} {}", PlayerText(lineup.player[i]), static_cast<int>(lineup.position[i]));
    return text;
}

std::string InputText(const Input& input) {
    return std::visit(
        [](const auto& in) -> std::string {
            using T = std::decay_t<decltype(in)>;
            if constexpr (std::is_same_v<T, RollInput>)
                return fmt::format("roll {} {}", in.chartRoll, ValuesText(in.values));
            else if constexpr (std::is_same_v<T, DecisionInput>)
                return fmt::format("decision {} {}", SideLetter(in.side), in.yes ? "yes" : "no");
            else if constexpr (std::is_same_v<T, IntentionalWalkInput>)
                return "walk " + ValuesText(in.values);
            else if constexpr (std::is_same_v<T, BuntInput>)
                return fmt::format("bunt {}", static_cast<int>(in.type));
            else if constexpr (std::is_same_v<T, StealInput>)
                return fmt::format("steal {}", in.target);
            else
                return LineupText(in);
        },
        input);
}

// --- Reading ---

// The words of one line, taken from the left; every complaint names the file, the line and the field.
class ReplayLine {
  public:
    ReplayLine(std::string_view text, const std::string& name, int line) : rest_(text), name_(name), line_(line) {}

    [[noreturn]] void Fail(std::string_view what) const {
        throw UserError(fmt::format("{}, line {}: {}", name_, line_, what));
    }
    std::string_view Word(std::string_view field) {
        const std::size_t from = rest_.find_first_not_of(' ');
        if (from == std::string_view::npos) Fail(fmt::format("{} is missing", field));
        const std::size_t to = std::min(rest_.find(' ', from), rest_.size());
        const std::string_view word = rest_.substr(from, to - from);
        rest_.remove_prefix(to);
        return word;
    }
    template <class T>
    T Number(std::string_view field, T low, T high, int base = 10) {
        const std::string_view word = Word(field);
        T value{};
        const auto end = word.data() + word.size();
        const auto parsed = std::from_chars(word.data(), end, value, base);
        if (parsed.ec != std::errc() || parsed.ptr != end || value < low || value > high)
            Fail(fmt::format("{} is \"{}\"; it must be a number from {} to {}", field, word, low, high));
        return value;
    }
    std::uint8_t Byte(std::string_view field, int low, int high) {
        return static_cast<std::uint8_t>(Number<int>(field, low, high));
    }
    void Done() const {
        if (rest_.find_first_not_of(' ') != std::string_view::npos)
            Fail(fmt::format("\"{}\" is too much at the end of the line", rest_));
    }

  private:
    std::string_view rest_;
    const std::string& name_;
    int line_;
};

StateHash ReadHash(ReplayLine& line) {
    StateHash hash{};
    for (std::size_t i = 0; i < kStateParts; ++i)
        hash[i] = line.Number<std::uint32_t>(fmt::format("the fingerprint of {}", kPartTexts[i]), 0, 0xFFFFFFFFU, 16);
    return hash;
}

PlayValues ReadValues(ReplayLine& line) {
    PlayValues v;
    const auto percent = [&](const char* field) { return line.Byte(field, 1, 100); };
    const auto roll = [&](const char* field) { return line.Byte(field, kFirstRoll, kLastRoll); };
    v.NarrationRoll = percent("NarrationRoll");
    v.RunnerRoll = percent("RunnerRoll");
    v.CoverRoll = percent("CoverRoll");
    v.FieldingRoll = roll("FieldingRoll");
    v.ErrorRoll = roll("ErrorRoll");
    v.ErrorColumn = line.Byte("ErrorColumn", 1, 5);
    v.FlyFielderRoll = percent("FlyFielderRoll");
    v.ErrorSpotRoll = percent("ErrorSpotRoll");
    v.SpareRoll = percent("SpareRoll");
    v.InfieldRoll = percent("InfieldRoll");
    v.ErrorKindRoll = roll("ErrorKindRoll");
    return v;
}

Side ReadSide(ReplayLine& line) {
    const std::string_view word = line.Word("the side");
    if (word != "V" && word != "H") line.Fail(fmt::format("the side is \"{}\"; it must be V or H", word));
    return word == "V" ? Side::Visitor : Side::Home;
}

PlayerRef ReadPlayer(ReplayLine& line, std::string_view field) {
    const std::string_view word = line.Word(field);
    if (word == "-") return {'B', -1};
    PlayerRef player{word.front(), -1};
    const auto end = word.data() + word.size();
    const auto parsed = std::from_chars(word.data() + 1, end, player.index);
    if ((player.type != 'B' && player.type != 'P') || parsed.ec != std::errc() || parsed.ptr != end || player.Nobody())
        line.Fail(fmt::format("{} is \"{}\"; it must be B or P and a place in the roster, or -", field, word));
    return player;
}

LineupInput ReadLineup(ReplayLine& line) {
    LineupInput lineup;
    lineup.side = ReadSide(line);
    lineup.pitcher = ReadPlayer(line, "the pitcher");
    for (std::size_t i = 0; i < lineup.player.size(); ++i) {
        lineup.player[i] = ReadPlayer(line, fmt::format("the man in slot {}", i + 1));
        lineup.position[i] =
            static_cast<Position>(line.Byte(fmt::format("the position in slot {}", i + 1), 0, kPositionCount - 1));
    }
    return lineup;
}

bool ReadYes(ReplayLine& line) {
    const std::string_view word = line.Word("the answer");
    if (word != "yes" && word != "no") line.Fail(fmt::format("the answer is \"{}\"; it must be yes or no", word));
    return word == "yes";
}

char ReadTarget(ReplayLine& line) {
    const std::string_view word = line.Word("the base");
    if (word != "2" && word != "3" && word != "H")
        line.Fail(fmt::format("the base is \"{}\"; it must be 2, 3 or H", word));
    return word.front();
}

Input ReadInput(ReplayLine& line, std::string_view kind) {
    if (kind == "roll") {
        RollInput roll;
        roll.chartRoll = line.Byte("the roll", kFirstRoll, kLastRoll);
        roll.values = ReadValues(line);
        return roll;
    }
    if (kind == "decision") {
        DecisionInput decision;
        decision.side = ReadSide(line);
        decision.yes = ReadYes(line);
        return decision;
    }
    if (kind == "walk") return IntentionalWalkInput{ReadValues(line)};
    if (kind == "bunt") return BuntInput{static_cast<BuntType>(line.Byte("the kind of bunt", 0, 2))};
    if (kind == "steal") return StealInput{ReadTarget(line)};
    if (kind == "lineup") return ReadLineup(line);
    line.Fail(fmt::format("\"{}\" is no input; it must be roll, decision, walk, bunt, steal, lineup or end", kind));
}

// Hands out the lines of a text; past the last one it complains that the record is cut off.
struct ReplayText {
    std::string_view text;
    const std::string& name;
    int line = 0;

    ReplayLine Next() {
        ++line;
        if (text.empty()) ReplayLine("", name, line).Fail("the record is cut off before its end line");
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view one = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!one.empty() && one.back() == '\r') one.remove_suffix(1);
        return {one, name, line};
    }
};

void ExpectWord(ReplayLine& line, std::string_view due) {
    const std::string_view word = line.Word(fmt::format("the word {}", due));
    if (word != due) line.Fail(fmt::format("\"{}\" stands where \"{}\" is due", word, due));
}

// --- Comparing ---

std::string Differences(const StateHash& is, const StateHash& due) {
    std::string text;
    for (std::size_t i = 0; i < kStateParts; ++i) {
        if (is[i] == due[i]) continue;
        text += text.empty() ? "" : ", ";
        text += kPartTexts[i];
    }
    return text;
}

}  // namespace

std::string_view StatePartText(StatePart part) {
    return kPartTexts[static_cast<std::size_t>(part)];
}

ReplayLog StartReplayLog(const GameData& data, const GameState& start) {
    return {HashGameData(data), HashState(start), {}};
}

void AddReplayStep(ReplayLog& log, const Input& input, const GameState& after) {
    log.steps.push_back({input, HashState(after)});
}

std::string WriteReplayLog(const ReplayLog& log) {
    std::string text = fmt::format("{} {}\ndata {:016x}\nstart{}\n", kReplayHead, kReplayFormat, log.dataHash,
                                   HashText(log.startHash));
    for (const ReplayStep& step : log.steps) text += InputText(step.input) + " |" + HashText(step.after) + '\n';
    return text + fmt::format("end {}\n", log.steps.size());
}

ReplayLog ParseReplayLog(std::string_view text, const std::string& name) {
    ReplayText lines{text, name};
    ReplayLog log;
    ReplayLine head = lines.Next();
    ExpectWord(head, kReplayHead);
    head.Number<int>("the format version", kReplayFormat, kReplayFormat);
    head.Done();
    ReplayLine data = lines.Next();
    ExpectWord(data, "data");
    log.dataHash = data.Number<std::uint64_t>("the data's fingerprint", 0, ~std::uint64_t{0}, 16);
    data.Done();
    ReplayLine start = lines.Next();
    ExpectWord(start, "start");
    log.startHash = ReadHash(start);
    start.Done();
    for (;;) {
        ReplayLine line = lines.Next();
        const std::string_view kind = line.Word("the input");
        if (kind == "end") {
            line.Number<std::size_t>("the number of steps", log.steps.size(), log.steps.size());
            line.Done();
            return log;
        }
        ReplayStep step{ReadInput(line, kind), {}};
        ExpectWord(line, "|");
        step.after = ReadHash(line);
        line.Done();
        log.steps.push_back(step);
    }
}

ReplayResult Replay(const GameData& data, const GameState& start, const ReplayLog& log) {
    ReplayResult result;
    result.state = start;
    const auto differs = [&](std::size_t step, const std::string& what) {
        result.same = false;
        result.step = step;
        result.difference = what;
        return result;
    };
    if (HashGameData(data) != log.dataHash) return differs(0, "start: the charts, rosters or rules are other ones");
    if (HashState(start) != log.startHash)
        return differs(0, "start: other in " + Differences(HashState(start), log.startHash));
    for (std::size_t i = 0; i < log.steps.size(); ++i) {
        const ReplayStep& step = log.steps[i];
        const std::string where = fmt::format("step {} ({})", i + 1, InputText(step.input));
        const Reject reject = Advance(data, result.state, step.input);
        if (reject != Reject::None) return differs(i + 1, fmt::format("{}: refused. {}", where, RejectText(reject)));
        const StateHash hash = HashState(result.state);
        if (hash != step.after) return differs(i + 1, where + ": other in " + Differences(hash, step.after));
    }
    return result;
}

}  // namespace tarvane
