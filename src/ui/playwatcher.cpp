#include "ui/playwatcher.h"

#include <algorithm>
#include <utility>

namespace tarvane {

namespace {

// Where a batter stands while a decision on the runners keeps him from his base.
int HeldBase(Result result) {
    return result == Result::DoubleDecision || result == Result::Double ? 2 : 1;
}

// Those before him have made room by then, whether they will try for more or not.
void MakeRoom(std::array<PlayFacts::Man, 4>& men, int PlayFacts::Man::*base, int held) {
    int taken = held;
    for (std::size_t i = 1; i < men.size(); ++i) {
        if (men[i].slot == 0 || men[i].*base <= 0 || men[i].*base > 3) continue;
        men[i].*base = std::min(3, std::max(men[i].*base, taken + 1));
        taken = men[i].*base;
    }
}

}  // namespace

bool PlayFacts::Has(Tag tag) const {
    return std::find(movements.begin(), movements.end(), tag) != movements.end();
}

bool PlayFacts::HitOrRun() const {
    for (const Tag tag : {Tag::Single, Tag::ExtraBaseHit, Tag::HomeRun})
        if (Has(tag)) return true;
    return std::any_of(man.begin(), man.end(), [](const Man& m) { return m.slot != 0 && m.to == kHome; });
}

void PlayWatcher::StepBegins(const GameState& state) {
    facts_ = {};
    facts_.step = ++steps_;
    closed_ = false;
    batting_ = state.BattingSide;
    held_ = state.play.batterHeld.On();
    const TeamState& team = state.Batting();
    const int from = held_ ? HeldBase(state.play.PlayResult) : PlayFacts::kAtBat;
    facts_.man[0] = {team.BatterSlot, from, from};
    for (int base = 1; base <= 3; ++base) {
        const auto at = static_cast<std::size_t>(base);
        facts_.man[at] = {team.runner[at].slot, base, base};
        if (team.runner[at].slot == team.BatterSlot) facts_.man[0].slot = 0;  // he stands there already
    }
    if (held_) MakeRoom(facts_.man, &PlayFacts::Man::from, from);
    facts_.labels = MakeFieldLabels(data_, state);
    facts_.batsLeft = !facts_.labels.leftBatter.text.empty();
}

void PlayWatcher::NoteStand(const GameState& state) {
    const TeamState& team = state[batting_];
    const bool held = state.play.batterHeld.On();
    const auto& list = state.play.RunsScoredList;
    const auto* const scored = list.begin() + std::min<std::size_t>(state.play.RunsScoredCount, list.size());
    for (PlayFacts::Man& man : facts_.man) {
        if (man.slot == 0 || man.to == PlayFacts::kHome) continue;
        const bool batter = &man == facts_.man.data();
        man.to = batter ? (held ? HeldBase(state.play.PlayResult) : PlayFacts::kAtBat) : PlayFacts::kOut;
        for (int base = 1; base <= 3; ++base)
            if (team.runner[static_cast<std::size_t>(base)].slot == man.slot) man.to = base;
        if (std::find(list.begin(), scored, man.slot) != scored) man.to = PlayFacts::kHome;
    }
    if (held) MakeRoom(facts_.man, &PlayFacts::Man::to, facts_.man[0].to);
}

// A decision that brought no further movement tells where the men of the play before have come to.
void PlayWatcher::AmendLast() {
    for (PlayFacts::Man& man : plays_.back().man)
        for (const PlayFacts::Man& now : facts_.man)
            if (man.slot != 0 && now.slot == man.slot && man.to != PlayFacts::kHome) man.to = now.to;
}

void PlayWatcher::OnEvent(const GameData&, const GameState& state, const GameEvent& event) {
    if (closed_) return;
    if (event.kind == EventKind::Animation) {
        facts_.movements.push_back(event.tag);
        facts_.result = state.play.PlayResult;
        facts_.fieldedBy = state.play.FieldedBy;
        facts_.nearLine = state.play.NearLine;
        facts_.RunnerRoll = state.play.values.RunnerRoll;
        facts_.stealTarget = state.play.StealTarget;
    }
    if (event.kind == EventKind::Animation || event.kind == EventKind::ScoreSheet) NoteStand(state);
    // The bases are emptied and the next man comes up only after this.
    closed_ = event.kind == EventKind::HalfEnded || event.kind == EventKind::GameEnded ||
              (event.kind == EventKind::ScoreSheet && event.tag == Tag::None);
}

void PlayWatcher::StepEnds(const GameState& state) {
    const bool sameTurn = state.BattingSide == batting_ && state[batting_].BatterSlot == facts_.man[0].slot;
    if (!closed_ && sameTurn) NoteStand(state);
    if (!facts_.movements.empty())
        plays_.push_back(facts_);
    else if (held_ && !plays_.empty())
        AmendLast();
}

std::vector<PlayFacts> PlayWatcher::TakePlays() {
    return std::exchange(plays_, {});
}

}  // namespace tarvane
