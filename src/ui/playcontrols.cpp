#include "ui/gameview.h"

namespace tarvane {

namespace {

constexpr const char* kGoOn = " or Press ALT+R for game play, click other buttons as needed.";

// What the plain captions and the banner say of each sheet.
struct SheetWords {
    const char* caption;   // after "Play Result "
    const char* banner;    // after "Click Play Result or Press ALT+R "
    const char* computer;  // the whole banner when a computer rolls
};

SheetWords RatingTestWords(bool walk) {
    return walk ? SheetWords{"BB", "for BB result.", "Click Computer Result or Press ALT+R for BB Result."}
                : SheetWords{"SO", "for SO result.", "Click Computer Result or Press ALT+R for SO Result."};
}

// The injury chart is rolled up to three times: what happened, to whom, for how long.
SheetWords InjuryWords(const Play& play) {
    if (!play.InjuryPending)
        return {"YellowX", "for Yellow-X/Injury Chart result.",
                "Click Computer Result or Press ALT+R for Yellow-X/Injury Chart result."};
    if (play.InjuredPosition == Position::None && !play.InjuredBatter)
        return {"YellowX", "to determine possible Injured Position.",
                "Click Computer Result or Press ALT+R to determine possible Injured Position."};
    return {"YellowX", "to determine Injury Duration.", "Computer Result or Press ALT+R to determine Injury Duration."};
}

SheetWords WordsOf(const GameState& state) {
    constexpr const char* kComputerGoOn =
        "Click Computer Result or Press ALT+R for game play, click other buttons as needed.";
    switch (state.sheet) {
        case SheetCode::B: return {"Batter", "for game play, click other buttons as needed.", kComputerGoOn};
        case SheetCode::BBSO: return RatingTestWords(state.play.PitcherSheetEffect == SheetEffect::BB);
        case SheetCode::PS:
            return {"Stamina", "to check Pitcher Stamina",
                    "Click Computer Result or Press ALT+R to check Pitcher Stamina"};
        case SheetCode::Bt:
            return {"Bunt", "for Bunt result.",
                    "Computer Manager attempting Bunt, Click Computer Result or Press ALT+R for result."};
        case SheetCode::S:
            return {"SB", "for Stolen Base result.",
                    "Computer Manager attempting SB, Click Computer Result or Press ALT+R for result."};
        case SheetCode::M:
            return {"MD", "for Manager Decison result.",
                    "Computer Mgr attempting extra base, Click Computer Result or Press ALT+R for result."};
        case SheetCode::X: return {"YellowX", "for Yellow-X Chart result.", kComputerGoOn};
        case SheetCode::XI: return InjuryWords(state.play);
        default: break;
    }
    return {"Pitcher", "for game play, click other buttons as needed.", kComputerGoOn};
}

// Whose hand rolls on a sheet: the side in the field on its pitcher's sheets and on the yellow X, else the side at bat.
Side RollingSide(const GameState& state) {
    switch (state.sheet) {
        case SheetCode::P:
        case SheetCode::PS:
        case SheetCode::X:
        case SheetCode::XI: return state.FieldingSide();
        default: return state.BattingSide;
    }
}

bool Legal(const GameSession& session, const Input& input) {
    return Check(session.Data(), session.State(), input) == Reject::None;
}

bool AnyBunt(const GameSession& session) {
    return Legal(session, BuntInput{BuntType::Sacrifice}) || Legal(session, BuntInput{BuntType::Squeeze});
}

bool AnySteal(const GameSession& session) {
    return Legal(session, StealInput{'2'}) || Legal(session, StealInput{'3'}) || Legal(session, StealInput{'H'});
}

void Captions(const GameSession& session, PlayControls& controls) {
    const GameState& state = session.State();
    const SheetWords words = WordsOf(state);
    if (session.Over()) {
        controls.cmdPlay = "Game Over";
        controls.banner = "The game is over. Click Game Over or Press ALT+R to go on.";
    } else if (session.Options().ComputerMgrAutoClick) {
        controls.cmdPlay = "1-Click Result";
        controls.banner = std::string("Click 1-Click Result") + kGoOn;
    } else if (state.computer[RollingSide(state)].game) {
        controls.cmdPlay = "Computer Result";
        controls.banner = words.computer;
    } else {
        controls.cmdPlay = std::string("Play Result ") + words.caption;
        controls.banner = std::string("Click Play Result or Press ALT+R ") + words.banner;
    }
    controls.chkPlay = session.Over() ? "Game Ove&r" : WithAltKey(controls.cmdPlay);
}

}  // namespace

std::string WithAltKey(const std::string& caption) {
    const std::size_t at = caption.find("Result");
    return at == std::string::npos ? caption : caption.substr(0, at) + "&" + caption.substr(at);
}

bool MayChangeLineup(const GameSession& session, Side side) {
    return !session.State().computer[side].subs || session.Options().DisplayCompMgrChanges;
}

PlayControls MakePlayControls(const GameSession& session) {
    PlayControls controls;
    Captions(session, controls);
    const GameState& state = session.State();
    const GameOptions& options = session.Options();
    const bool rolls = session.CanRoll();
    const bool pitch = rolls && state.sheet == SheetCode::P;
    const bool ask = options.AuxChartsAutoClick;  // a human may act for a computer's team
    controls.play = rolls || session.Over();
    controls.manualRoll = rolls && !options.ComputerMgrAutoClick;
    controls.rowClick = controls.manualRoll && options.ManualDiceRolls;
    controls.intentionalWalk =
        pitch && (ask || !state.computer[state.FieldingSide()].game) && Legal(session, IntentionalWalkInput{});
    const bool strategy = pitch && (ask || !state.computer[state.BattingSide].game);
    controls.bunt = strategy && AnyBunt(session);
    controls.steal = strategy && AnySteal(session);
    controls.lineup = pitch;
    controls.previous = session.LastChart().has_value() && state.sheet != SheetCode::BBSO &&
                        state.sheet != SheetCode::PS && !session.Over();
    controls.quickPlay = rolls && (state.sheet == SheetCode::P || state.sheet == SheetCode::PS);
    return controls;
}

}  // namespace tarvane
