#include "ui/playsounds.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "core/paths.h"

namespace tarvane {

namespace {

// What a result sounds like. Results that nobody hears are None.
enum class Heard { None, Single, Double, Triple, HR, Error, Fly, FlyDecision, Ground, DP, K, BB, HBP, Wild };

Heard HeardOf(Result result) {
    switch (result) {
        case Result::Single:
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision: return Heard::Single;
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision: return Heard::Double;
        case Result::Triple: return Heard::Triple;
        case Result::HR: return Heard::HR;
        case Result::E: return Heard::Error;
        case Result::F:
        case Result::SF: return Heard::Fly;
        case Result::FDecision:
        case Result::SFDecision: return Heard::FlyDecision;
        case Result::G:
        case Result::GAdvance:
        case Result::SH:
        case Result::FC: return Heard::Ground;
        case Result::DP: return Heard::DP;
        case Result::K: return Heard::K;
        case Result::BB: return Heard::BB;
        case Result::HBP: return Heard::HBP;
        case Result::WP:
        case Result::PB: return Heard::Wild;
        default: return Heard::None;
    }
}

bool PutsSomebodyOut(Result result) {
    const Heard heard = HeardOf(result);
    return heard == Heard::Fly || heard == Heard::FlyDecision || heard == Heard::Ground || heard == Heard::DP ||
           heard == Heard::K || result == Result::CS || result == Result::PK;
}

bool MDOut(ManagerDecisionResult result) {
    return result == ManagerDecisionResult::Out || result == ManagerDecisionResult::OutStar;
}

bool PlaysWhole(const std::string& name) {
    const std::size_t dot = name.find_last_of('.');
    if (dot == std::string::npos) return false;
    std::string ending = name.substr(dot + 1);
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return ending == "WAV" || ending == "MID";
}

constexpr int kSongsMayRepeatFrom = 12;  // inning

}  // namespace

std::filesystem::path BuiltInSounds() {
    return AssetsPath() / "sounds";
}

void PlaySounds::OnEvent(const GameData&, const GameState& state, const GameEvent& event) {
    if (event.kind == EventKind::HalfEnded) PlayInningMusic(state, event.side);
    if (!Options().PlaysAreHeard()) return;
    if (event.kind == EventKind::Sound) {
        crowdHeard_ = false;
        if (Options().UserGamePlaySounds)
            UserPlay(state, event);
        else
            BuiltInPlay(state, event);
    }
    if (event.kind == EventKind::Narration && event.tag == Tag::RunsScored) RunsScored(state, event.number);
}

std::vector<SoundCue> PlaySounds::TakeCues() {
    return std::exchange(cues_, {});
}

// --- The built-in set ------------------------------------------------------------------------------------------------

void PlaySounds::OneOf(std::initializer_list<const char*> clips, SoundMoment moment) {
    const auto chosen = static_cast<std::size_t>(random_.RandomPercent() - 1) * clips.size() / 100;
    cues_.push_back({BuiltInSounds() / *(clips.begin() + chosen), moment, 0, steps_});
}

void PlaySounds::Crowd(std::initializer_list<const char*> clips) {
    OneOf(clips, SoundMoment::After);
    crowdHeard_ = true;
}

void PlaySounds::BuiltInPlay(const GameState& state, const GameEvent& event) {
    using M = SoundMoment;
    const bool home = event.side == Side::Home;
    if (event.sheet == SheetCode::M) {
        BuiltInDecision(state.play.MDResult);
        return CrowdAfterOut(state, MDOut(state.play.MDResult) ? Result::F : Result::None);
    }
    if (event.sheet == SheetCode::S) {
        BuiltInSteal(event.result, home);
        return CrowdAfterOut(state, event.result);
    }
    const bool bunted = event.sheet == SheetCode::Bt;
    const auto softly = [&] {
        bunted ? OneOf({"BuntOrTip.wav"}, M::Struck) : OneOf({"BallHitSolid2.wav", "BallHit2.wav"}, M::Struck);
    };
    switch (HeardOf(event.result)) {
        case Heard::Single:
            bunted ? softly() : OneOf({"BallHitSolid2.wav", "BallHit2.wav", "BaseHit.wav"}, M::Struck);
            break;
        case Heard::Double:
            if (home)
                OneOf({"BallHitSolid1.wav", "BallHitSolid2.wav", "BallHitSolid3.wav", "BaseHit.wav"}, M::Struck);
            else
                OneOf({"BaseHit.wav"}, M::Struck);
            break;
        case Heard::Triple:
            OneOf({"BallHitSolid1.wav", "BallHitSolid2.wav", "BallHitSolid3.wav"}, M::Struck);
            if (home) Crowd({"CheeringLarge.wav"});
            break;
        case Heard::HR:
            if (home) {
                OneOf({"hitcrowdcheer2.wav", "BallHitSolid1.wav"}, M::Struck);
                Crowd({"CheeringLarge.wav", "CheerWithHorn.wav"});
            } else {
                OneOf({"BallHitSolid1.wav", "BallHitSolid2.wav", "BallHitSolid3.wav"}, M::Struck);
            }
            break;
        case Heard::Error:
        case Heard::FlyDecision:
            softly();
            if (home && state.play.RunsScoredCount > 0) Crowd({"CheerWithHorn.wav"});
            if (!home && event.result == Result::E) PlayCrowdSound(event.side);
            break;
        case Heard::Fly:
        case Heard::Ground:
        case Heard::DP:
            softly();
            OneOf({"CatchBall1.wav", "CatchBall2.wav", "CatchBall3.wav"}, M::Caught);
            break;
        case Heard::K:
            if (bunted)
                OneOf({"BuntOrTip.wav"}, M::Struck);
            else
                OneOf({"Swing.wav", "Catcher1.wav", "BuntOrTip.wav"}, M::Struck);
            break;
        case Heard::BB:
            if (!home) OneOf({"Catcher2.wav"}, M::Struck);
            break;
        default: break;
    }
    CrowdAfterOut(state, event.result);
}

void PlaySounds::BuiltInDecision(ManagerDecisionResult result) {
    if (MDOut(result))
        OneOf({"BaseSlide.wav", "CatchBall2.wav"}, SoundMoment::Caught);
    else if (result != ManagerDecisionResult::None)
        OneOf({"BaseSlide.wav"}, SoundMoment::Caught);
}

void PlaySounds::BuiltInSteal(Result result, bool home) {
    if (result == Result::SB || result == Result::CS || result == Result::CSE)
        OneOf({"BaseSlide.wav", "CatchBall2.wav"}, SoundMoment::Caught);
    if (result == Result::PK) OneOf({"CatchBall1.wav", "CatchBall3.wav"}, SoundMoment::Caught);
    if (home && result == Result::SB) Crowd({"CheerMed.wav", "Crowd cheering.wav"});
    if (home && result == Result::PK) Crowd({"crowd down.wav"});
}

// The crowd is the Home team's. It doesn't rise for every out: always for the one that ends the half, else now and
// then; it groans when a rally of its own ends.
void PlaySounds::CrowdAfterOut(const GameState& state, Result result) {
    if (!PutsSomebodyOut(result) || crowdHeard_) return;
    const bool third = state.Outs >= 3;
    const int chance = random_.RandomPercent();
    if (state.BattingSide == Side::Visitor) {
        const bool last = third && state.Inning >= 9 && state[Side::Home].Runs > state[Side::Visitor].Runs;
        if (last)
            Crowd({"CheeringLarge.wav"});
        else if (third || result == Result::DP)
            Crowd({"CheerMed.wav", "Crowd cheering.wav"});
        else if (chance <= (result == Result::K ? 40 : 15))
            Crowd({"CheerSmall.wav"});
        return;
    }
    int left = 0;
    for (const Runner& runner : state.Batting().runner) left += runner.On();
    if ((result == Result::DP || (third && left >= 2)) && chance <= 40) Crowd({"crowd down.wav"});
}

void PlaySounds::RunsScored(const GameState& state, int runs) {
    const Side batting = state.BattingSide;
    if (Options().UserGamePlaySounds) return User(batting, "RunsScored", SoundMoment::After);
    if (crowdHeard_) return;
    if (batting == Side::Visitor) return PlayCrowdSound(batting);
    const int lead = state[Side::Home].Runs - state[Side::Visitor].Runs;
    const bool turned = lead >= 0 && lead < runs;  // behind or level before
    if (turned || (lead == 0 && state.Inning >= 7))
        Crowd({"CheeringLarge.wav", "CheerWithHorn.wav"});
    else
        Crowd({"CheerMed.wav", "Crowd cheering.wav"});
}

void PlaySounds::PlayCrowdSound(Side batting) {
    const int value = random_.RandomPercent();
    if (batting != Side::Visitor || Options().UserGamePlaySounds) return;
    if (value <= 13)
        Crowd({"boos1.wav"});
    else if (value <= 26)
        Crowd({"crowd down.wav"});
}

// --- The user's set --------------------------------------------------------------------------------------------------

std::filesystem::path PlaySounds::UserFile(const std::string& name) const {
    std::error_code ignored;
    const std::filesystem::path own = Options().folder / name;
    return Options().folder.empty() || !std::filesystem::exists(own, ignored) ? BuiltInSounds() / name : own;
}

void PlaySounds::User(Side side, const char* event, SoundMoment moment) {
    const auto found = Options().user.find((side == Side::Visitor ? "Visitor" : "Home") + std::string(event));
    if (found != Options().user.end() && !found->second.empty())
        cues_.push_back({UserFile(found->second), moment, 0, steps_});
}

void PlaySounds::UserPlay(const GameState& state, const GameEvent& event) {
    using M = SoundMoment;
    const auto play = [&](const char* name, M moment) { User(event.side, name, moment); };
    if (event.sheet == SheetCode::M) return play(MDOut(state.play.MDResult) ? "MDOut" : "MDSafe", M::Caught);
    if (event.sheet == SheetCode::S) {
        if (event.result == Result::SB) play("SB", M::Caught);
        if (event.result == Result::CS || event.result == Result::CSE) play("CS", M::Caught);
        if (event.result == Result::PK) play("PK", M::Caught);
        return;
    }
    const bool bunted = event.sheet == SheetCode::Bt;
    switch (HeardOf(event.result)) {
        case Heard::Single: play(bunted ? "Bunt" : "Single", M::Struck); break;
        case Heard::Double: play("Double", M::Struck); break;
        case Heard::Triple: play("Triple", M::Struck); break;
        case Heard::HR: play("HR", M::Struck); break;
        case Heard::Error:
            play(bunted ? "Bunt" : "Error", M::Struck);
            play("BadPlay", M::After);
            break;
        case Heard::Fly:
        case Heard::FlyDecision:
            play(bunted ? "Bunt" : "FOSF", M::Struck);
            play("FOSFGlove", M::Caught);
            break;
        case Heard::Ground:
            play(bunted ? "Bunt" : "GOFC", M::Struck);
            play("GOFCGlove1", M::Caught);
            play("GOFCGlove2", M::Caught);
            break;
        case Heard::DP:
            play(bunted ? "Bunt" : "DP", M::Struck);
            for (const char* glove : {"DPGlove1", "DPGlove2", "DPGlove3"}) play(glove, M::Caught);
            break;
        case Heard::K: play("SO", M::Struck); break;
        case Heard::BB: play("BB", M::Struck); break;
        case Heard::HBP: play("HBP", M::Struck); break;
        case Heard::Wild: play("WPOrPB", M::Struck); break;
        case Heard::None: break;
    }
    if (state.play.GreatPlay) play("GoodPlay", M::After);
}

// --- Between innings -------------------------------------------------------------------------------------------------

// The number of a song that has a name and wasn't played yet in this game; the list's size if it is empty. When all
// have been played they begin anew.
std::size_t PlaySounds::NextSong(int inning) {
    const auto free = [&](std::size_t song) {
        const bool again = Options().BetweeInnRandom && inning >= kSongsMayRepeatFrom;
        return !Options().Sound[song].empty() && (!MusicClipPlayed[song] || again);
    };
    for (int pass = 0; pass < 2; ++pass) {
        std::vector<std::size_t> songs;
        for (std::size_t song = 0; song < Options().Sound.size(); ++song)
            if (free(song)) songs.push_back(song);
        if (!songs.empty())
            return Options().BetweeInnRandom ? songs[random_.Below(static_cast<std::uint32_t>(songs.size()))]
                                             : songs.front();
        MusicClipPlayed = {};
    }
    return Options().Sound.size();
}

void PlaySounds::PlayInningMusic(const GameState& state, Side ended) {
    if (!Options().BetweenInningsSounds || session_.SpectatorMode) return;
    const auto play = [this](const std::string& name) {
        cues_.push_back({UserFile(name), SoundMoment::BetweenInnings,
                         PlaysWhole(name) ? 0 : static_cast<int>(Options().SoundDuration), steps_});
    };
    if (ended == Side::Visitor && state.Inning == 7 && !Options().SeventhInnStretchSound.empty())
        return play(Options().SeventhInnStretchSound);
    const std::size_t song = NextSong(state.Inning);
    if (song == Options().Sound.size())
        return OneOf({"OrganRally.wav", "OrganStroll.wav", "OrganStairs.wav"}, SoundMoment::BetweenInnings);
    MusicClipPlayed[song] = true;
    play(Options().Sound[song]);
}

}  // namespace tarvane
