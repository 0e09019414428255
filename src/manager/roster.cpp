#include "manager/roster.h"

#include <cmath>

namespace tarvane {

namespace {

template <class Man>
int IndexOfId(const std::vector<Man>& men, std::int32_t playerID) {
    for (std::size_t i = 0; i < men.size(); ++i)
        if (men[i].playerID == playerID) return static_cast<int>(i);
    return -1;
}

template <class Man>
bool FitToPlay(const Man& man) {
    return man.injury.InjuredDaysRemaining <= 0 && !man.Inactive && !man.NoLongerWithTeam;
}

template <class Entries>
const PositionRating* EntryFor(const Entries& entries, Position position) {
    for (const PositionRating& entry : entries)
        if (entry.position == position) return &entry;
    return nullptr;
}

}  // namespace

int BatterIndexOf(const TeamRoster& roster, std::int32_t playerID) {
    return IndexOfId(roster.batters, playerID);
}
int PitcherIndexOf(const TeamRoster& roster, std::int32_t playerID) {
    return IndexOfId(roster.pitchers, playerID);
}

PlayerRef ManInSlot(const TeamRoster& roster, const ListSlot& slot) {
    if (slot.playerID == 0) return {slot.PlayerType, -1};
    const int index =
        slot.PlayerType == 'P' ? PitcherIndexOf(roster, slot.playerID) : BatterIndexOf(roster, slot.playerID);
    return {slot.PlayerType, static_cast<std::int16_t>(index)};
}

bool CanPlay(const Batter& batter) {
    return FitToPlay(batter);
}
bool CanPlay(const Pitcher& pitcher) {
    return FitToPlay(pitcher);
}

bool CanPlay(const TeamRoster& roster, PlayerRef man) {
    if (man.Nobody()) return false;
    const auto index = static_cast<std::size_t>(man.index);
    return man.type == 'P' ? CanPlay(roster.pitchers[index]) : CanPlay(roster.batters[index]);
}

std::string_view NameOf(const TeamRoster& roster, PlayerRef man) {
    if (man.Nobody()) return {};
    const auto index = static_cast<std::size_t>(man.index);
    return man.type == 'P' ? roster.pitchers[index].playerName : roster.batters[index].playerName;
}

bool SamePerson(const TeamRoster& roster, PlayerRef a, PlayerRef b) {
    if (a.Nobody() || b.Nobody()) return false;
    if (a == b) return true;
    const auto key = [&roster](PlayerRef man) -> const std::string& {
        const auto index = static_cast<std::size_t>(man.index);
        return man.type == 'P' ? roster.pitchers[index].LahmanPlayerID : roster.batters[index].LahmanPlayerID;
    };
    if (!key(a).empty() && !key(b).empty()) return key(a) == key(b);
    return !NameOf(roster, a).empty() && NameOf(roster, a) == NameOf(roster, b);
}

const LineupList* FindList(const TeamRoster& roster, char type, Position depth) {
    for (const LineupList& list : roster.lists)
        if (list.LineupType == type && (type != 'D' || PositionFromText(list.DepthType) == depth)) return &list;
    return nullptr;
}

LineupList* FindList(TeamRoster& roster, char type, Position depth) {
    return const_cast<LineupList*>(FindList(static_cast<const TeamRoster&>(roster), type, depth));
}

const PositionRating* RatingAt(const Batter& batter, Position position) {
    return EntryFor(batter.Pos, position);
}

const PositionRating* RatingAt(const TeamRoster& roster, PlayerRef man, Position position) {
    if (man.Nobody()) return nullptr;
    const auto index = static_cast<std::size_t>(man.index);
    return man.type == 'P' ? EntryFor(roster.pitchers[index].Pos, position)
                           : EntryFor(roster.batters[index].Pos, position);
}

int Thousandths(double chance) {
    return static_cast<int>(std::lround(chance * 1000));
}

int OnBase(const Batter& batter) {
    const auto side = [](const BattingChances& c) { return c.Singles + c.Doubles + c.Triples + c.HR + c.BBorHBP; };
    return Thousandths(side(batter.vsLChance)) + Thousandths(side(batter.vsRChance));
}

int OutShare(const Pitcher& pitcher) {
    return Thousandths(pitcher.chance.Out + pitcher.chance.SO + pitcher.chance.GreenK);
}

}  // namespace tarvane
