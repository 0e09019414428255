#include "narration/narrator.h"

#include <fmt/format.h>

#include <algorithm>

#include "narration/naming.h"

namespace tarvane {

namespace {

// About ten plays of sentences: a wording comes again inside that span only when its range holds no other.
constexpr std::size_t kMemory = 60;

bool StartsText(const GameEvent& event, const GameState& state) {
    if (event.tag == Tag::PitcherThrow || event.tag == Tag::PickOff) return true;
    return event.tag == Tag::PitcherResult && state.play.PlayResult == Result::BK;
}

bool StandsAlone(Tag tag) {
    return tag == Tag::EndOfInning || tag == Tag::EndOfInningMiddle || tag == Tag::PitcherTired ||
           tag == Tag::PitcherIntermediateTired || tag == Tag::Pitcher2ndWind || tag == Tag::SBSafe ||
           tag == Tag::SBSafeError || tag == Tag::SBError || tag == Tag::SBOut;
}

}  // namespace

Narrator::Narrator(const Wordings& wordings, Sink sink) : wordings_(wordings), sink_(std::move(sink)) {}

void Narrator::BeginText(bool pitch) {
    if (!text_.empty() && !onlyPitch_ && sink_) sink_(text_);
    text_.clear();
    onlyPitch_ = pitch;
}

// The roll picks the range and, inside it, where to begin; a sentence heard lately gives way to its neighbour, and if
// all have been heard the one heard longest ago comes again.
const Sentence& Narrator::Choose(const std::vector<Sentence>& wordings, int roll) const {
    const std::size_t first = static_cast<std::size_t>(roll) % wordings.size();
    const Sentence* oldest = nullptr;
    std::ptrdiff_t since = -1;
    for (std::size_t i = 0; i < wordings.size(); ++i) {
        const Sentence* sentence = &wordings[(first + i) % wordings.size()];
        const auto ago = std::find(recent_.rbegin(), recent_.rend(), sentence) - recent_.rbegin();
        if (ago <= since) continue;
        oldest = sentence;
        since = ago;
        if (ago == std::ssize(recent_)) break;
    }
    return *oldest;
}

void Narrator::Say(std::string_view key, const GameData& data, const GameState& state, const GameEvent& event) {
    const int roll = state.play.values.NarrationRoll;
    const auto& wordings = wordings_.For(Wordings::IndexOf(key), roll);
    const Sentence* chosen = &Choose(wordings, roll);
    recent_.push_back(chosen);
    if (recent_.size() > kMemory) recent_.pop_front();

    if (!text_.empty()) text_ += ' ';
    for (std::size_t i = 0; i < chosen->text.size(); ++i) {
        text_ += chosen->text[i];
        if (i < chosen->name.size()) text_ += NameText(chosen->name[i], data, state, event);
    }
}

void Narrator::Welcome(const GameData& data, const GameState& state) {
    BeginText(false);
    Say("Welcome", data, state, {});
}

void Narrator::WelcomeBack(const GameData& data, const GameState& state) {
    BeginText(false);
    Say("WelcomeBack", data, state, {});
    const auto score = [&](Side side) {
        return fmt::format("{} {}", ShortTeamName(data[side].roster.team), state[side].Runs);
    };
    text_ +=
        fmt::format(" It's the {} of the {}. The score: {}, {}.", state.BattingSide == Side::Visitor ? "top" : "bottom",
                    NameText(Name::Inning, data, state, {}), score(Side::Visitor), score(Side::Home));
}

void Narrator::OnEvent(const GameData& data, const GameState& state, const GameEvent& event) {
    const bool told = event.kind == EventKind::Narration || event.kind == EventKind::Substitution ||
                      (event.kind == EventKind::GameEnded && !state.WalkOff);
    if (!told) return;
    const auto situations = SituationsOf(data, state, event);
    if (situations.empty()) return;
    const bool pitch = event.tag == Tag::PitcherThrow;
    if (StartsText(event, state) || StandsAlone(event.tag) || event.kind == EventKind::Substitution) BeginText(pitch);
    for (const std::string_view key : situations) Say(key, data, state, event);
    if (!pitch) onlyPitch_ = false;
}

void Narrator::Finish() {
    BeginText(false);
}

}  // namespace tarvane
