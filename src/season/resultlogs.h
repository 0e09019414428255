#pragma once

#include "season/posting.h"
#include "season/postingstatements.h"

namespace tarvane {

// One team's part of a posting.
struct TeamPosting {
    const GameToPost& game;
    GameData& data;
    const GameState& state;
    Side side;
    const TeamGame& played;  // what the team did
    PostingReport& report;

    TeamRoster& Roster() const { return data.team[side].roster; }
    const Team& Opponent() const { return data[Other(side)].roster.team; }
    const BoxLines& Box() const { return state[side].box; }
};

// The rows that the logs of results get of one team's men, and the common rows of men who changed teams, which grow by
// the same counts. Injuries and rest are those that the records hold after the game.
void LogBatters(PostingStatements& statements, const TeamPosting& post);
// restBefore: the rest of each pitcher before the game, by roster index.
void LogPitchers(PostingStatements& statements, const TeamPosting& post, const std::vector<std::uint8_t>& restBefore);

}  // namespace tarvane
