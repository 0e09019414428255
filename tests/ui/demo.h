#pragma once

#include <deque>
#include <string>
#include <vector>

#include "engine/fixture.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

namespace tarvane::demo {

// A season of two invented clubs, without a database.
class DemoSeasons : public SeasonAccess {
  public:
    explicit DemoSeasons(bool active = true) { season_.Active = active; }

    std::vector<SeasonEntry> Seasons() override { return {season_}; }
    std::string ActiveSeason() const override { return season_.Active ? season_.LeagueName : std::string(); }
    std::string SetActive(std::int64_t) override {
        if (fileMissing) return "Season database file not found. Choose another Active Season.";
        season_.Active = true;
        return {};
    }
    LeagueRules Rules() const override { return rules; }
    std::vector<TeamEntry> Teams() override { return teams; }
    std::vector<ParkEntry> Parks() override { return {{1, "Demo Field", 9999}, {2, "Harbour Park", 1975}}; }
    GamePtr Exhibition(const ExhibitionGame& game) override {
        auto setup = MakeSetup();
        for (const Side side : kBothSides) setup->control[side] = game.control[side];
        return setup;
    }

    GamePtr Setup() const { return MakeSetup(); }
    std::shared_ptr<PreparedGame> MakeSetup() const {
        auto setup = std::make_shared<PreparedGame>();
        GameData* data = &setup->data;
        *data = fixture::MakeGameData(rules);
        data->team[Side::Visitor].roster.team.shortName = "Visitors";
        data->team[Side::Home].roster.team.shortName = "Homers (1975)";
        NameMen(data->team[Side::Visitor].roster, 0);
        NameMen(data->team[Side::Home].roster, 31);
        data->park.Stadium = "Harbour Park";
        data->park.yearID = 1975;
        setup->lineup = {
            {fixture::StartingLineup(*data, Side::Visitor), fixture::StartingLineup(*data, Side::Home, 1)}};
        return setup;
    }

    // Invented names, as long and as short as names get.
    static void NameMen(TeamRoster& roster, std::size_t from) {
        static const char* const first[]{"Al", "Ben", "Cody", "Dominic", "Ed", "Francisco", "Gus", "Hal", "Ike", "Jo"};
        static const char* const last[]{"Ash",   "Brandywine", "Cole", "Dunmore",    "Eck",    "Fairweather", "Grove",
                                        "Hatch", "Ironwood",   "Jute", "Kettering",  "Lodge",  "Marlow",      "Ny",
                                        "Oakes", "Pennington", "Quay", "Rutherford", "Stride", "Thistle",     "Umber"};
        std::size_t i = from;
        const auto next = [&] {
            const std::string name = fmt::format("{} {}", first[i % 10], last[i % 21]);
            ++i;
            return name;
        };
        for (Batter& batter : roster.batters) batter.playerName = next();
        for (Pitcher& pitcher : roster.pitchers) pitcher.playerName = next();
    }

    bool fileMissing = false;
    LeagueRules rules = fixture::FullRules();
    std::vector<TeamEntry> teams{{1, "VIS", "Vale Visitors", 1, false, false},
                                 {2, "HOM", "Harbour Homers", 2, false, false}};

  private:
    SeasonEntry season_{7, "Demo 1975", true};
};

// Answers from a list; what was asked is kept.
class ScriptedDialogs : public Dialogs {
  public:
    struct Shown {
        std::string text, title;
    };
    std::vector<Shown> warnings, reminders, questions, documents;
    std::deque<Reply> replies;  // Yes to everything when empty is defaultReply
    Reply defaultReply = Reply::No;
    int choice = -1, pick = -1;

    void Warn(const std::string& text, const std::string& title) override { warnings.push_back({text, title}); }
    void Remind(const std::string& text, const std::string& title) override { reminders.push_back({text, title}); }
    Reply Ask(const std::string& text, const std::string& title, bool) override {
        questions.push_back({text, title});
        if (replies.empty()) return defaultReply;
        const Reply reply = replies.front();
        replies.pop_front();
        return reply;
    }
    int Choose(const std::string& text, const std::string& title, const std::string&, const std::string&) override {
        questions.push_back({text, title});
        return choice;
    }
    int Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) override {
        questions.push_back({text, title});
        picks = choices;
        return pick < 0 ? -1 : std::min(pick, static_cast<int>(choices.size()) - 1);
    }
    void ShowDocument(const std::string& text, const std::string& title) override {
        documents.push_back({text, title});
    }
    std::optional<std::uint32_t> PickColor(std::uint32_t) override { return color; }
    std::optional<std::filesystem::path> OpenFile(const std::string&, const std::filesystem::path&,
                                                  const std::string&) override {
        return file;
    }
    std::optional<std::filesystem::path> SaveFile(const std::string&, const std::filesystem::path&, const std::string&,
                                                  const std::string&) override {
        return file;
    }
    std::optional<std::uint32_t> color;           // the colour that the user picks
    std::optional<std::filesystem::path> file;  // what the user picks
    std::vector<std::string> picks;
};

class NoSound : public SoundPlayer {
  public:
    void Play(const std::filesystem::path& file) override { played.push_back(file.filename().string()); }
    void PlayNext(const std::filesystem::path& file, int seconds) override {
        played.push_back(file.filename().string());
        lastSeconds = seconds;
    }
    void Stop() override { ++stops; }
    void Beep() override { ++beeps; }
    int beeps = 0, stops = 0, lastSeconds = 0;
    std::vector<std::string> played;
};

class NoBrowser : public Browser {
  public:
    void Open(const std::string& address) override { opened.push_back(address); }
    std::vector<std::string> opened;
};

struct Outside {
    ScriptedDialogs dialogs;
    NoSound sound;
    NoBrowser browser;
    Services Get() { return {dialogs, sound, browser}; }
};

}  // namespace tarvane::demo
