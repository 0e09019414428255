#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <set>

#include "base/error.h"
#include "engine/fixture.h"
#include "narration/naming.h"
#include "narration/narrator.h"

namespace tarvane {
namespace {

Wordings Shipped() {
    return Wordings::Load(std::string(TARVANE_SOURCE_DIR) + "/assets/narration/playbyplay.txt");
}

std::string Whole(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

std::string ShippedText() {
    std::string text;
    std::FILE* file = std::fopen((std::string(TARVANE_SOURCE_DIR) + "/assets/narration/playbyplay.txt").c_str(), "rb");
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) text += static_cast<char>(c);
    std::fclose(file);
    return text;
}

TEST(Wordings, ShippedTextsAreWholeAndVaried) {
    const Wordings wordings = Shipped();
    EXPECT_GE(wordings.SentenceCount(), 480U);
}

TEST(Wordings, RangesOfTheRoll) {
    EXPECT_EQ(RangeOf(50, 2), 0);
    EXPECT_EQ(RangeOf(51, 2), 1);
    EXPECT_EQ(RangeOf(33, 3), 0);
    EXPECT_EQ(RangeOf(34, 3), 1);
    EXPECT_EQ(RangeOf(67, 3), 2);
    EXPECT_EQ(RangeOf(100, 3), 2);
    EXPECT_EQ(RangeOf(75, 4), 2);
    EXPECT_EQ(RangeOf(76, 4), 3);
}

TEST(Wordings, DamagedTextNamesTheLine) {
    const std::string good = ShippedText();
    const std::vector<std::pair<std::string, std::string>> damages{
        {Whole(good, "[FlyOut] 4", "[FlyOut] 3"), "split into 4"},
        {Whole(good, "[FlyOut] 4", "[FlayOut] 4"), "no such situation: FlayOut"},
        {Whole(good, "{catcher}", "{umpire}"), "{umpire}"},
        {Whole(good, "{catcher} ", "{catcher "), "line"},
        {Whole(good, "Nice play by {fielder} to save a hit.", "Nice play by {fielder}"), "end a sentence"},
        {Whole(good, "[Welcome] 1", "Hello.\n[Welcome] 1"), "before the first heading"},
        {good + "\n[Single] 3\nA.\nB.\nC.\n", "twice"}};
    for (const auto& [text, expected] : damages) {
        try {
            Wordings::Parse(text, "texts");
            ADD_FAILURE() << "accepted: " << expected;
        } catch (const UserError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("texts"));
            EXPECT_THAT(error.what(), testing::HasSubstr(expected));
        }
    }
}

TEST(Naming, NamesAsARadioSaysThem) {
    EXPECT_EQ(LastName("Al van Dorn"), "van Dorn");
    EXPECT_EQ(LastName("Solo"), "Solo");
    Team team;
    team.shortName = "Comets (75)";
    EXPECT_EQ(ShortTeamName(team), "Comets");
}

GameData NamedData() {
    GameData data = fixture::MakeGameData();
    data.team[Side::Visitor].roster.team.shortName = "Comets";
    data.team[Side::Home].roster.team.shortName = "Rivermen (75)";
    data.park.Stadium = "Mill Field";
    return data;
}

// Hears every event beside the narrator and holds the two against each other.
class Witness : public GameListener {
  public:
    explicit Witness(const Wordings& wordings) : narrator_(wordings, [this](const std::string& text) { Take(text); }) {}

    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override {
        narrator_.OnEvent(data, state, event);
        if (event.kind != EventKind::Narration) return;
        ++tags[event.tag];
        if (SituationsOf(data, state, event).empty()) ++silent[event.tag];
    }
    void Take(const std::string& text) {
        texts.push_back(text);
        CountRepeats(text);
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("nobody")));
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("{")));
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("  ")));
    }

    std::vector<std::string> texts;
    std::map<Tag, int> tags, silent;
    int sentences = 0, repeated = 0;  // word for word within ten plays
    Narrator narrator_;

  private:
    void CountRepeats(const std::string& text) {
        std::set<std::string> said;
        for (std::size_t from = 0; from < text.size();) {
            const std::size_t end = std::min(text.find(". ", from), text.size());
            const std::string sentence = text.substr(from, end - from);
            ++sentences;
            for (const auto& play : last_) repeated += static_cast<int>(play.count(sentence));
            said.insert(sentence);
            from = end + 2;
        }
        last_.push_back(std::move(said));
        if (last_.size() > 10) last_.pop_front();
    }
    std::deque<std::set<std::string>> last_;
};

TEST(Narrator, TellsWholeGamesWithoutGapsOrStrangers) {
    const Wordings wordings = Shipped();
    const GameData data = NamedData();
    Witness witness(wordings);
    Random random(5);
    Manager hold;
    for (int game = 0; game < 200; ++game) {
        GameState state = fixture::FirstPitch(data);
        PlayOut(data, state, random, hold, hold, &witness);
        witness.narrator_.Finish();
    }
    for (const Tag tag :
         {Tag::GroundOut2, Tag::FlyOut2, Tag::DoublePlay2, Tag::Single2, Tag::ExtraBaseHit2, Tag::HomeRunRBI,
          Tag::PitcherResult, Tag::RunsScored, Tag::EndOfInning, Tag::EndOfInningMiddle})
        EXPECT_GT(witness.tags[tag], 50) << static_cast<int>(tag);
    EXPECT_EQ(witness.silent[Tag::GroundOut2] + witness.silent[Tag::FlyOut2] + witness.silent[Tag::Error2], 0);
    EXPECT_GT(witness.texts.size(), 200U * 60U);
    EXPECT_LT(witness.repeated, witness.sentences / 100) << "of " << witness.sentences;
}

TEST(Narrator, AWordingRestsBeforeItComesAgain) {
    const Wordings wordings = Shipped();
    const GameData data = fixture::MakeGameData();
    std::vector<std::string> pitches;
    Narrator narrator(wordings, nullptr);
    GameState state = fixture::FirstPitch(data);
    state.play.values.NarrationRoll = 10;  // the same roll again and again: the same range of three wordings
    for (int i = 0; i < 6; ++i) {
        narrator.OnEvent(data, state, {EventKind::Narration, Tag::PitcherThrow});
        pitches.push_back(narrator.PlayText());
    }
    EXPECT_EQ(std::set<std::string>(pitches.begin(), pitches.begin() + 3).size(), 3U);
}

TEST(Narrator, ScoreIsToldAsItStands) {
    const Wordings wordings = Shipped();
    const GameData data = fixture::MakeGameData();
    GameState state = fixture::FirstPitch(data);
    const GameEvent run{
        EventKind::Narration, Tag::RunsScored, Side::Visitor, SheetCode::B, 20, Result::Single, Position::None, 1, 1};
    state[Side::Visitor].Runs = 1;
    EXPECT_THAT(SituationsOf(data, state, run), testing::ElementsAre("RunsScored.count", "RunsScored.lead"));
    state[Side::Home].Runs = 1;
    EXPECT_THAT(SituationsOf(data, state, run), testing::ElementsAre("RunsScored.count", "RunsScored.tied"));
    state[Side::Home].Runs = 4;
    state.play.PlayResult = Result::HR;
    EXPECT_THAT(SituationsOf(data, state, run), testing::ElementsAre("RunsScored.other"));
    EXPECT_TRUE(SituationsOf(data, state, {EventKind::Narration, Tag::HomeRunRBI}).empty());
}

}  // namespace
}  // namespace tarvane
