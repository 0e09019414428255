#include "ui/frmgame.h"

#include <fmt/format.h>
#include <QMenu>

#include "ui/frmquickplay.h"
#include "ui/gamequestions.h"
#include "ui/names.h"
#include "ui_frmgame.h"

namespace tarvane {

namespace {
constexpr const char* kNotBuilt = "This screen is not built yet.";
}

frmGame::frmGame(GamePtr setup, const GameOptions& options, std::uint64_t seed, Services services, QWidget* parent)
    : Screen(parent),
      services_(services),
      session_(std::move(setup), options, seed),
      sounds_(session_, seed),
      watcher_(session_.Data()),
      ui_(std::make_unique<Ui::frmGame>()) {
    Build();
}

frmGame::frmGame(const SavedGame& saved, const std::filesystem::path& file, const GameOptions& options,
                 std::uint64_t seed, Services services, QWidget* parent)
    : Screen(parent),
      services_(services),
      session_(saved, options, seed),
      sounds_(session_, seed),
      watcher_(session_.Data()),
      ui_(std::make_unique<Ui::frmGame>()),
      secondsBefore_(saved.seconds),
      saveFile_(file),
      resumedFrom_(file) {
    sounds_.SetSongsPlayed(saved.MusicClipPlayed);
    Build();
}

void frmGame::Build() {
    session_.AddOnlooker(sounds_);
    session_.AddOnlooker(watcher_);
    ui_->setupUi(this);
    show_ = std::make_unique<PlayShow>(*ui_->fraField, services_.sound);
    connect(show_.get(), &PlayShow::Ended, this, &frmGame::ResultStays);
    ui_->fraField->SetPark(session_.Data().park);
    SetUpGrids();
    BuildSettingsMenu();
    ConnectControls();
    pause_.setSingleShot(true);
    clock_.start();
    connect(&pause_, &QTimer::timeout, this, &frmGame::GoOn);
    Begin();
}

frmGame::~frmGame() = default;

void frmGame::Begin() {
    const Reject reject = session_.Start();
    setWindowTitle(
        QString::fromStdString(fmt::format("Tarvane PC Baseball - {} at {}", TeamName(session_.Data(), Side::Visitor),
                                           TeamName(session_.Data(), Side::Home))));
    if (reject != Reject::None) {
        services_.dialogs.Warn(std::string(RejectText(reject)), "Play Exhibition Game");
        mayClose_ = true;
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    if (resumedFrom_.empty()) OfferSpectator();
    begun_ = true;
    Refresh();
}

void frmGame::OfferSpectator() {
    const GameOptions& options = session_.Options();
    if (!options.ComputerMgrAutoClick || !options.PromptSpectatorMode || !options.ComputerPlaysBoth()) return;
    services_.sound.Beep();
    session_.SpectatorMode =
        services_.dialogs.Ask(
            "Computer Manager is on for game play and substitutions for both teams and 1-Click Result "
            "is also on.\nWould you like to view this game as a spectator?",
            "Game Play Mode") == Reply::Yes;
}

void frmGame::showEvent(QShowEvent* event) {
    Screen::showEvent(event);
    ui_->cmdPlay->setFocus();
    if (begun_ && (session_.RollsByItself() || session_.AwaitsHuman())) pause_.start(0);
}

void frmGame::ConnectControls() {
    const auto click = [this](QPushButton* button, auto slot) { connect(button, &QPushButton::clicked, this, slot); };
    click(ui_->cmdPlay, &frmGame::Play);
    connect(ui_->chkPlay, &QPushButton::clicked, ui_->cmdPlay, &QPushButton::click);
    click(ui_->cmdManualRoll, [this] { ManualRoll(ui_->cmbManualDice->currentData().toInt()); });
    click(ui_->chkIntBB, &frmGame::IntentionalWalk);
    click(ui_->chkBunt, &frmGame::Bunt);
    click(ui_->chkSteal, &frmGame::Steal);
    click(ui_->chkcurrPrev, &frmGame::PreviousPlay);
    click(ui_->chkQuickPlay, &frmGame::QuickPlay);
    click(ui_->chkScore, &frmGame::ShowBoxScore);
    click(ui_->cmdQuit, [this] { close(); });
    click(ui_->chkLineup, [this] {
        const GameState& state = session_.State();
        ChangeLineup(opponentShown_ ? state.FieldingSide() : state.BattingSide);
    });
    click(ui_->chkSettings, [this] { OpenSettings(); });
    click(ui_->chkOpp, [this] {
        opponentShown_ = !opponentShown_;
        ShowLineup();
        ShowControls();
    });
    connect(ui_->grdActiveChart, &ChartGrid::RollChosen, this, [this](int chartRoll) {
        if (shown_ == Shown::Current && MakePlayControls(session_).rowClick) ManualRoll(chartRoll);
    });
    for (QLabel* link :
         {ui_->lblStandings, ui_->lblTeamStats, ui_->lblLeadersBatting, ui_->lblLeadersPitching, ui_->lblLeagueStats}) {
        link->setText(QStringLiteral("<a href='#' style='color:#DCE6D2'>%1</a>").arg(link->text()));
        connect(link, &QLabel::linkActivated, this, [this] { Say(tr(kNotBuilt)); });
    }
}

// --- Clicks ----------------------------------------------------------------------------------------------------------

void frmGame::Play() {
    if (show_->Running()) {
        show_->Skip();
        return;
    }
    if (pause_.isActive() || shown_ == Shown::Previous) {
        services_.sound.Beep();
        return;
    }
    services_.sound.Stop();
    Say({});
    if (session_.Over()) {
        EndGame();
        return;
    }
    if (session_.Roll()) AfterInput();
}

void frmGame::ManualRoll(int chartRoll) {
    if (pause_.isActive() || shown_ != Shown::Current) return;
    services_.sound.Stop();
    Say({});
    if (session_.RollByHand(chartRoll)) AfterInput();
}

bool frmGame::Asks(const Question& question) {
    return services_.dialogs.Ask(question.text, question.title) == Reply::Yes;
}

void frmGame::IntentionalWalk() {
    if (!Asks(WalkQuestion(session_.Data(), session_.State(), session_.Options()))) return;
    if (session_.IntentionalWalk()) GoOn();
}

void frmGame::Bunt() {
    const GameState& state = session_.State();
    const Question question = BuntQuestion(session_.Data(), state, session_.Options());
    BuntType type = BuntAsked(state);
    if (FirstAndThird(state)) {
        const int way = services_.dialogs.Choose(question.text, question.title, question.first, question.second);
        if (way < 0) return;
        type = way == 0 ? BuntType::Sacrifice : BuntType::Squeeze;
    } else if (!Asks(question)) {
        return;
    }
    if (session_.Bunt(type)) GoOn();
}

void frmGame::Steal() {
    const GameState& state = session_.State();
    const Question question = StealQuestion(session_.Data(), state, session_.Options());
    char target = StealAsked(state);
    if (FirstAndThird(state)) {
        const int way = services_.dialogs.Choose(question.text, question.title, question.first, question.second);
        if (way < 0) return;
        target = way == 0 ? '2' : 'H';
    } else if (!Asks(question)) {
        return;
    }
    if (session_.Steal(target)) GoOn();
}

void frmGame::PreviousPlay() {
    if (pause_.isActive()) return;
    shown_ = shown_ == Shown::Previous ? Shown::Current : Shown::Previous;
    Refresh();
}

void frmGame::QuickPlay() {
    auto* options = new frmQuickPlay(QuickPlayChoices(session_.State()), services_, this);
    connect(options, &frmQuickPlay::Chosen, this, &frmGame::RunQuickPlay);
    options->open();
}

void frmGame::RunQuickPlay(int throughInning, bool spectator) {
    if (spectator)
        session_.Watch(throughInning);
    else
        session_.QuickPlay(throughInning);
    GoOn();
}

// --- After each input ------------------------------------------------------------------------------------------------

// A result stays on its chart for as long as the settings say; then the game goes on.
void frmGame::AfterInput() {
    const GameOptions& options = session_.Options();
    if (options.DiceRollSounds)
        services_.sound.Play(BuiltInSounds() / (session_.LastChart()->secondDiceSound ? "DiceB.wav" : "DiceA.wav"));
    if (ShowPlays()) return;
    HearPlays();
    ResultStays();
}

void frmGame::ResultStays() {
    const GameOptions& options = session_.Options();
    if (options.ResultSeconds() == 0) {
        GoOn();
        return;
    }
    shown_ = Shown::Result;
    pause_.start(options.ResultSeconds() * 1000);
    Refresh();
}

// Lets what has happened since the last time move on the field, over the chart and the roll that it came from; what
// came of it is shown afterwards. False if there is nothing to see.
bool frmGame::ShowPlays() {
    const AnimationOptions& animation = session_.Options().animation;
    std::vector<PlayFacts> plays = watcher_.TakePlays();
    if (animation.GameAnimationLite) std::erase_if(plays, [](const PlayFacts& play) { return !play.HitOrRun(); });
    if (!animation.GameAnimation || plays.empty() || !isVisible()) return false;
    shown_ = Shown::Result;
    if (const auto& last = session_.LastChart()) ui_->grdActiveChart->SetChart(last->chart, last->roll);
    ShowDiceAndResult();
    if (!show_->Start(std::move(plays), sounds_.TakeCues(), animation)) return false;
    ShowControls();
    return true;
}

// The sounds of what has happened follow those that still play.
void frmGame::HearPlays() {
    for (const SoundCue& cue : sounds_.TakeCues()) services_.sound.PlayNext(cue.file, cue.seconds);
}

void frmGame::GoOn() {
    if (show_->Running() || ShowPlays()) return;
    if (RollsAtOnce()) {
        while (RollsAtOnce() && session_.Roll()) {
        }
        return GoOn();
    }
    shown_ = Shown::Current;
    HearPlays();
    Refresh();
    for (const Reminder& reminder : session_.TakeReminders()) services_.dialogs.Remind(reminder.text, reminder.title);
    while (session_.AwaitsHuman())
        if (!AskManager()) return;
    if (session_.Over()) {
        if (session_.State().WalkOff && !walkOffTold_) {
            walkOffTold_ = true;
            Refresh();
            services_.dialogs.Remind(
                "Walk off win for the " + TeamName(session_.Data(), Side::Home) + ". Click Game Over to continue.",
                "Game Over");
        } else if (!walkOffTold_) {
            EndGame();
        }
        return;
    }
    if (!session_.RollsByItself()) return;
    if (!session_.Roll()) return;
    services_.sound.Stop();
    if (ShowPlays()) return;
    HearPlays();
    shown_ = Shown::Result;
    pause_.start(session_.Options().ResultSeconds() * 1000);
    Refresh();
}

// The rest of a 1-Click turn at bat, which nobody waits to see sheet by sheet.
bool frmGame::RollsAtOnce() const {
    return session_.Options().ResultSeconds() == 0 && !session_.SpectatorMode && session_.RollsByItself();
}

// Puts what the game awaits of a human to him; false if nothing could be done.
bool frmGame::AskManager() {
    if (session_.Proposed()) {
        const Question question =
            MoveQuestion(session_.Data(), session_.State(), session_.Options(), *session_.Proposed());
        if (!session_.Confirm(Asks(question))) return false;
    } else if (session_.State().awaited.kind == Await::Decision) {
        const bool yes = Asks(DecisionQuestion(session_.Data(), session_.State(), session_.Options()));
        if (!session_.Answer(yes)) return false;
    } else {
        ChangeLineup(session_.State().awaited.side);
        return false;  // the game goes on when the line-up's screen closes
    }
    Refresh();
    return true;
}

// --- The end ---------------------------------------------------------------------------------------------------------

void frmGame::EndGame() {
    Refresh();
    Q_EMIT Finished();
}

}  // namespace tarvane
