#pragma once

#include <string>

#include "engine/game.h"

namespace tarvane {

// The line score: runs by inning in groups of three, then R, H, E and LOB; "x" for a bottom half not played.
std::string LineScoreText(const GameData& data, const GameState& state);

// The box score of a game, finished or under way, as aligned plain text in UTF-8: for each side the batters, the notes
// below them and the pitchers with their decisions.
std::string BoxScoreText(const GameData& data, const GameState& state);

// The figures by which one side's batting proves itself against the other side's pitching.
struct SideProof {
    int AB = 0, BB = 0, HBP = 0, SH = 0, SF = 0;
    int BF = 0;                       // batters faced by the other side's pitchers
    int Runs = 0, LOB = 0, Outs = 0;  // outs as the other side's pitchers have them
    // Men for whom those pitchers still answer: those on base now. After a game that ended in the home half they are
    // the men left on base in it, whom LOB doesn't count.
    int OnBase = 0;
    bool Relieved = false;  // the other side used more than one pitcher

    int Appearances() const { return AB + BB + HBP + SH + SF; }
    bool FacedProves() const { return Appearances() == BF; }
    // Runs, men left, men on and outs, less the appearances: 0 with one pitcher. After a relief it can be above 0, by
    // one for each of a relieved man's runners who was put out on the bases: that out is not taken off his account.
    int Surplus() const { return Runs + LOB + OnBase + Outs - Appearances(); }
    bool AppearancesProve() const { return Surplus() == 0 || (Relieved && Surplus() > 0); }
};

struct BoxProof {
    PerSide<SideProof> side;
    bool Proves() const;
};
BoxProof ProveBox(const GameState& state);

// The proof as two lines, one a side: "AB 34 + BB 3 + ... = 40 = BF 40; R 4 + LOB 8 + outs 27 + ... = 40".
std::string BoxProofText(const GameData& data, const GameState& state);

// Outs as whole innings, a point and the outs of the next: 215.2.
std::string InningsText(int outs);

}  // namespace tarvane
