#include "ui/frmsettingsgame.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "data/settings.h"
#include "ui/parkpicture.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui/userlook.h"

namespace tarvane {

namespace {

constexpr const char* kGameTitle = "Game Play Settings";
constexpr std::array<double, 5> kSpeeds{0.33, 0.67, 1.0, 1.33, 1.67};  // fastest to slowest
constexpr int kLongestDelay = 10;                                      // seconds
constexpr int kLongestWait = 60;                                       // seconds
constexpr int kLastPort = 65534;                                       // the control channel takes the next one

QStringList Counts(int from, int to) {
    QStringList texts;
    for (int i = from; i <= to; ++i) texts.append(QString::number(i));
    return texts;
}

int NearestSpeed(double speed) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < kSpeeds.size(); ++i)
        if (std::abs(kSpeeds[i] - speed) < std::abs(kSpeeds[best] - speed)) best = i;
    return static_cast<int>(best);
}

// Reads and writes a preference of one letter by the place of a list.
int PlaceOfLetter(const std::string& letters, const std::string& value) {
    const std::size_t at = value.empty() ? 0 : letters.find(value.front());
    return at == std::string::npos ? 0 : static_cast<int>(at);
}

}  // namespace

frmSettingsGame::frmSettingsGame(Session& session, Services services, QWidget* parent)
    : SettingsScreen(QString::fromLatin1(kGameTitle), "Game Play settings", kGameTitle, services, parent),
      session_(session),
      settings_(session.Settings()),
      condensed_(session.Screens().CondensedBoxScore),
      banner_(session.Settings().FieldZ == 1),
      tabs_(new QTabBar),
      pages_(new QStackedWidget) {
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->setExpanding(false);
    pages_->setObjectName(QStringLiteral("pages"));
    body_->addWidget(tabs_);
    body_->addWidget(pages_, 1);
    AddPlayPage();
    AddKeepPage();
    AddScreenPage();
    connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
    auto* defaults = new QPushButton(tr("Color and &Font Defaults"));
    defaults->setObjectName(QStringLiteral("chkDefaults"));
    defaults->setProperty("role", "quiet");
    connect(defaults, &QPushButton::clicked, this, &frmSettingsGame::LookDefaults);
    commands_->addWidget(defaults);
    SettingsScreen::Show();
}

QVBoxLayout* frmSettingsGame::AddPage(const QString& tab) {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("page%1").arg(pages_->count()));
    auto* inside = new QVBoxLayout(page);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(10);
    pages_->addWidget(page);
    tabs_->addTab(tab);
    return inside;
}

void frmSettingsGame::AddPlayPage() {
    QVBoxLayout* page = AddPage(tr("&Playing"));
    auto* row = new QHBoxLayout;
    page->addLayout(row);
    auto* play = AddCard(row, "fraPlay", tr("At the game"));
    AddCheck(play, "chkAutoRollVsComputer", tr("Use 1-Click Results during Games"), settings_.ComputerMgrAutoClick);
    AddCheck(play, "chkManualDiceRolls", tr("Manual Dice Rolls"), settings_.ManualDiceRolls);
    AddCheck(play, "chkHideChart", tr("Hide Chart during Game"), settings_.HideChartDuringGame);
    AddCheck(play, "chkResultChances", tr("Display Play Result Chances"), settings_.DisplayChances);
    AddCheck(play, "chkBanner", tr("Game Play Instruction Banner"), banner_);
    AddCheck(play, "chkQuickPlay", tr("Use Quick Play for Computer Games"), settings_.QuickPlayMode);
    AddCheck(play, "chkPromptSpectator", tr("Prompt for Spectator Mode"), settings_.PromptSpectatorMode);
    AddCheck(play, "chkPitcherRestWarning", tr("Pitcher Rest Reminder"), settings_.PitcherRestWarning);
    AddCheck(play, "chkPitcherBatterWarning", tr("Pitcher Due to Bat Reminder"), settings_.PitcherBatterWarning);
    AddList(
        play, "cmbResultDelay", tr("Seconds after a result"), Counts(0, kLongestDelay),
        [this] { return std::min<int>(settings_.PlayResultDelay, kLongestDelay); },
        [this](int at) { settings_.PlayResultDelay = static_cast<std::uint8_t>(at); });
    AddList(
        play, "cmbChartType", tr("Charts of the lineups"),
        {tr("Legacy Chart"), tr("Probability Chart"), tr("Results Chart")},
        [this] { return PlaceOfLetter("CPR", settings_.DefaultChartType); },
        [this](int at) { settings_.DefaultChartType = std::string(1, "CPR"[at]); });
    play->addStretch(1);
    auto* right = new QVBoxLayout;
    row->addLayout(right);
    AddComputerManagers(right);
    AddAnimation(right);
    page->addStretch(1);
}

void frmSettingsGame::AddComputerManagers(QBoxLayout* to) {
    auto* card = AddCard(to, "fraComputer", tr("Computer managers"));
    AddCheck(card, "chkCompMgr1Click", tr("Confirm Computer Manager Strategies"), settings_.AuxChartsAutoClick);
    AddCheck(card, "chkCompMgrChanges", tr("Confirm Computer Manager Substitutions"), settings_.DisplayCompMgrChanges);
    auto* sides = new QHBoxLayout;
    card->addLayout(sides);
    const auto side = [&](const char* name, const QString& caption, bool& lineups, bool& subs, bool& game) {
        auto* column = new QVBoxLayout;
        auto* head = MakeLabel(nullptr, caption);
        head->setObjectName(QStringLiteral("lblComp") + QString::fromLatin1(name));
        column->addWidget(head);
        const std::string start = std::string("chkComp") + name;
        AddCheck(column, (start + "Lineups").c_str(), tr("Lineups"), lineups);
        AddCheck(column, (start + "Subs").c_str(), tr("Substitutions"), subs);
        AddCheck(column, (start + "Game").c_str(), tr("Game decisions"), game);
        sides->addLayout(column);
    };
    side("Road", tr("Visitors begin with"), settings_.CompRoadMgrLineups, settings_.CompRoadMgrSubs,
         settings_.CompRoadMgrGame);
    side("Home", tr("Home team begins with"), settings_.CompHomeMgrLineups, settings_.CompHomeMgrSubs,
         settings_.CompHomeMgrGame);
}

void frmSettingsGame::AddAnimation(QBoxLayout* to) {
    auto* card = AddCard(to, "fraAnimation", tr("Animation"));
    AddCheck(card, "chkGameAninmation", tr("Animate the Ball"), settings_.GameAnimation);
    AddCheck(card, "chkBaseRunnerAnimation", tr("Animate Base Runners"), settings_.BaseRunnerAnimation);
    AddCheck(card, "chkGameAnimationLite", tr("Light Form: Hits and Runs Only"), settings_.GameAnimationLite);
    AddList(
        card, "cmbAnimationSpeed", tr("Speed"),
        {tr("Fastest"), tr("Faster"), tr("Average"), tr("Slower"), tr("Slowest")},
        [this] { return NearestSpeed(settings_.GameAniSpeed2); },
        [this](int at) { settings_.GameAniSpeed2 = kSpeeds[static_cast<std::size_t>(std::clamp(at, 0, 4))]; });
    card->addStretch(1);
}

void frmSettingsGame::AddKeepPage() {
    QVBoxLayout* page = AddPage(tr("&Results and Internet"));
    auto* row = new QHBoxLayout;
    page->addLayout(row);
    auto* keep = AddCard(row, "fraKeep", tr("Kept of a game"));
    AddCheck(keep, "chkSaveStats", tr("Post Statistics to the Season"), settings_.SaveStats);
    AddCheck(keep, "chkSaveBoxScore", tr("Save Box Score"), settings_.SaveBoxScore);
    AddCheck(keep, "chkSaveScoreSheet", tr("Save Score Sheet"), settings_.SaveScoreSheet);
    AddCheck(keep, "chkCondensedBoxScore", tr("Condensed Box Score"), condensed_);
    AddFormat(keep);
    keep->addStretch(1);
    auto* tell = AddCard(row, "fraTell", tr("Telling the game"));
    AddCheck(tell, "chkPlayByPlay", tr("Play by Play"), settings_.PlayByPlayResults);
    AddCheck(tell, "chkPlayByPlayAndKorv", tr("Play by Play and Chart Results"), settings_.PlayByPlayAndKorvResults);
    tell->addStretch(1);
    AddInternet(row);
    page->addStretch(1);
}

void frmSettingsGame::AddFormat(QBoxLayout* to) {
    auto* group = new QButtonGroup(this);
    const std::pair<const char*, QString> forms[]{{"optHTML", tr("as HTML pages")}, {"optText", tr("as text")}};
    for (const auto& [name, text] : forms) {
        auto* button = new QRadioButton(text);
        button->setObjectName(QString::fromLatin1(name));
        group->addButton(button, name[3] == 'T' ? 'T' : 'H');
        to->addWidget(button);
        connect(button, &QRadioButton::toggled, this, &frmSettingsGame::Changed);
    }
    Bind([this, group] { group->button(settings_.ResultsFormat == "T" ? 'T' : 'H')->setChecked(true); },
         [this, group] { settings_.ResultsFormat = std::string(1, static_cast<char>(group->checkedId())); });
}

void frmSettingsGame::AddInternet(QBoxLayout* to) {
    auto* card = AddCard(to, "fraInternet", tr("Internet games"));
    auto* row = new QHBoxLayout;
    auto* label = MakeLabel("lblInternetPort", tr("Internet Local Port"));
    port_ = new QLineEdit;
    port_->setObjectName(QStringLiteral("txtInternetPort"));
    port_->setMaxLength(8);
    label->setBuddy(port_);
    row->addWidget(label, 1);
    row->addWidget(port_);
    card->addLayout(row);
    connect(port_, &QLineEdit::textChanged, this, &frmSettingsGame::Changed);
    Bind([this] { port_->setText(QString::number(settings_.InternetLocalPort)); },
         [this] { settings_.InternetLocalPort = port_->text().trimmed().toInt(); });
    AddList(
        card, "cmbOppWaitTime", tr("Seconds to wait for the opponent"), Counts(0, kLongestWait),
        [this] { return std::min<int>(settings_.InternetPauseTime, kLongestWait); },
        [this](int at) { settings_.InternetPauseTime = static_cast<std::uint8_t>(at); });
    AddCheck(card, "chkSoundWhenMsgReceived", tr("Sound when a Message Comes"), settings_.SoundWhenMsgReceived);
    card->addStretch(1);
}

void frmSettingsGame::AddScreenPage() {
    QVBoxLayout* page = AddPage(tr("&Look"));
    auto* row = new QHBoxLayout;
    page->addLayout(row, 1);
    AddColors(row);
    AddPicture(row);
}

void frmSettingsGame::AddColors(QBoxLayout* to) {
    auto* card = AddCard(to, "fraColors", tr("Colors and letters"));
    GameSettings& s = settings_;
    AddPair(card, "ScoreBoard", tr("Score board"), s.ScoreBoardBackColor, s.ScoreBoardForeColor,
            {theme::kBoard, theme::kCream});
    AddPair(card, "PlayByPlay", tr("Play by play"), s.PlayByPlayBackColor, s.PlayByPlayForeColor,
            {theme::kPaper, theme::kInk});
    AddPair(card, "ReportGrids", tr("Reports"), s.ReportGridsBackColor, s.ReportGridsForeColor,
            {theme::kPaper, theme::kInk});
    AddPair(card, "MainGrids", tr("Main menu"), s.MainGridsBackColor, s.MainGridsForeColor,
            {theme::kCream, theme::kInk});
    const auto size = [&](const char* name, const QString& text, std::int16_t& value, int largest) {
        AddList(
            card, name, text, Counts(8, largest), [&value, largest] { return std::clamp<int>(value, 8, largest) - 8; },
            [&value](int at) { value = static_cast<std::int16_t>(at + 8); });
    };
    size("cmbScoreBoardFont", tr("Letters of the score board"), s.ScoreBoardFontSize, 10);
    size("cmbPlayByPlayFont", tr("Letters of the play by play"), s.PlayByPlayFontSize, 12);
    size("cmbReportsFont", tr("Letters of the reports"), s.ReportsFontSize, 12);
    card->addStretch(1);
}

// A sample of how the pair reads, and a button for each of its colours.
void frmSettingsGame::AddPair(QBoxLayout* to, const char* name, const QString& text, std::int32_t& back,
                              std::int32_t& fore, const UserColors& house) {
    auto* row = new QHBoxLayout;
    auto* sample = MakeLabel(nullptr, text);
    sample->setObjectName(QStringLiteral("lbl") + QString::fromLatin1(name));
    const auto paint = [sample, &back, &fore, house] {
        const UserColors seen = ColorsOf(back, fore).value_or(house);
        sample->setStyleSheet(
            QStringLiteral("background: %1; color: %2; border: 1px solid #A99D7C; border-radius: 3px; padding: 4px 8px;")
                .arg(seen.back.name(), seen.fore.name()));
    };
    row->addWidget(sample, 1);
    for (const bool ground : {true, false}) {
        auto* button = new QPushButton(ground ? tr("Ground") : tr("Text"));
        button->setObjectName(QStringLiteral("cmd%1%2").arg(QString::fromLatin1(name),
                                                            QString::fromLatin1(ground ? "Back" : "Fore")));
        button->setAccessibleName(text + QStringLiteral(": ") + button->text());
        connect(button, &QPushButton::clicked, this, [this, paint, ground, &back, &fore, house] {
            std::int32_t newBack = back, newFore = fore;
            BeginPair(newBack, newFore, house);
            std::int32_t& color = ground ? newBack : newFore;
            const auto chosen = services_.dialogs.PickColor(static_cast<std::uint32_t>(color));
            if (!chosen) return;
            color = static_cast<std::int32_t>(*chosen);
            back = newBack;
            fore = newFore;
            paint();
            Changed();
        });
        row->addWidget(button);
    }
    Bind(paint, [] {});
    to->addLayout(row);
}

void frmSettingsGame::AddPicture(QBoxLayout* to) {
    auto* card = AddCard(to, "fraPicture", tr("Picture of the main menu"));
    pictures_ = new QListWidget;
    pictures_->setObjectName(QStringLiteral("FileList"));
    const QDir folder(QString::fromStdString(session_.Paths().BallparkImages().string()));
    pictures_->addItem(tr("(the program's own picture)"));
    pictures_->addItems(folder.entryList({QStringLiteral("*.bmp"), QStringLiteral("*.jpg")}, QDir::Files, QDir::Name));
    card->addWidget(pictures_, 1);
    auto* hint = MakeLabel("lblPictureHint",
                           tr("Pictures (*.bmp, *.jpg) that lie in the folder \"Ballpark Images\" of your data."));
    hint->setWordWrap(true);
    card->addWidget(hint);
    auto* seen = new ParkPicture;
    seen->setObjectName(QStringLiteral("imgPreview"));
    seen->setFixedHeight(110);
    card->addWidget(seen);
    connect(pictures_, &QListWidget::currentRowChanged, this, [this, seen] {
        GameSettings chosen;
        chosen.MainMenuImage = Picture();
        seen->SetPicture({});
        seen->SetPicture(QText(MainMenuImageFile(session_.Paths(), chosen).string()));
        Changed();
    });
    Bind(
        [this] {
            const auto found = pictures_->findItems(QText(settings_.MainMenuImage), Qt::MatchFixedString);
            pictures_->setCurrentRow(found.isEmpty() ? 0 : pictures_->row(found.front()));
        },
        [this] { settings_.MainMenuImage = Picture(); });
}

// The marked picture's file name; empty for the program's own.
std::string frmSettingsGame::Picture() const {
    return pictures_->currentRow() > 0 ? pictures_->currentItem()->text().toStdString() : std::string();
}

void frmSettingsGame::LookDefaults() {
    const GameSettings house;
    Take();
    for (const auto color :
         {&GameSettings::ScoreBoardBackColor, &GameSettings::ScoreBoardForeColor, &GameSettings::PlayByPlayBackColor,
          &GameSettings::PlayByPlayForeColor, &GameSettings::ReportGridsBackColor, &GameSettings::ReportGridsForeColor,
          &GameSettings::MainGridsBackColor, &GameSettings::MainGridsForeColor})
        settings_.*color = house.*color;
    for (const auto size :
         {&GameSettings::ScoreBoardFontSize, &GameSettings::PlayByPlayFontSize, &GameSettings::ReportsFontSize})
        settings_.*size = house.*size;
    const QString port = port_->text();
    SettingsScreen::Show();
    port_->setText(port);  // a port that can't be read yet stays as typed
    Changed();
}

bool frmSettingsGame::Store() {
    bool number = false;
    const int port = port_->text().trimmed().toInt(&number);
    if (!number || port < 1 || port > kLastPort) {
        tabs_->setCurrentIndex(1);
        Refuse(number ? "Internet Local Port must be between 1 and 65534" : "Internet Local Port must be numeric",
               port_);
        return false;
    }
    Take();
    settings_.FieldZ = banner_ ? 1 : 0;
    settings_.DBVersion = std::max<std::int16_t>(settings_.DBVersion, 2);
    Database& common = session_.Common();
    ScreenSettings screens = session_.Screens();
    screens.CondensedBoxScore = condensed_;
    Transaction change(common);
    SaveGameSettings(common, settings_);
    SaveScreenSettings(common, screens);
    change.Commit();
    session_.Settings() = settings_;
    session_.Screens() = screens;
    return true;
}

}  // namespace tarvane
