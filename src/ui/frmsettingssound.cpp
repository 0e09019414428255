#include "ui/frmsettingssound.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>

#include "data/settings.h"
#include "ui/qtext.h"
#include "ui/soundgrid.h"

namespace tarvane {

namespace {

constexpr const char* kSoundTitle = "Sound Preferences";
constexpr int kLongestSound = 120;  // seconds

struct SingleSound {
    const char* text;
    std::string GameSettings::*file;
};
constexpr SingleSound kSingleSounds[]{{"The program starts", &GameSettings::IntroSound},
                                      {"A team or player is dropped in a league", &GameSettings::LeagueOrgDropSound},
                                      {"A player is put in a lineup", &GameSettings::LineupDropSound},
                                      {"A player is taken out of a lineup", &GameSettings::LineupRemoveSound},
                                      {"Anthem of the United States", &GameSettings::AnthemUSSound},
                                      {"Anthem of Canada", &GameSettings::AnthemCASound},
                                      {"Another anthem", &GameSettings::AnthemOtherSound},
                                      {"Seventh inning stretch", &GameSettings::SeventhInnStretchSound}};

// The occasions of a play, as the columns of GamePlaySounds end, and how the screen calls them.
constexpr std::pair<const char*, const char*> kPlaySounds[]{{"Single", "Single"},
                                                            {"Double", "Double"},
                                                            {"Triple", "Triple"},
                                                            {"HR", "Home run"},
                                                            {"RunsScored", "Runs score"},
                                                            {"BB", "Walk"},
                                                            {"HBP", "Hit by pitch"},
                                                            {"SO", "Strikeout"},
                                                            {"GOFC", "Ground out or fielder's choice"},
                                                            {"GOFCGlove1", "  ... the ball is fielded"},
                                                            {"GOFCGlove2", "  ... the throw is caught"},
                                                            {"DP", "Double play"},
                                                            {"DPGlove1", "  ... the ball is fielded"},
                                                            {"DPGlove2", "  ... the first throw is caught"},
                                                            {"DPGlove3", "  ... the second throw is caught"},
                                                            {"FOSF", "Fly out or sacrifice fly"},
                                                            {"FOSFGlove", "  ... the ball is caught"},
                                                            {"GoodPlay", "A fine play"},
                                                            {"BadPlay", "A poor play"},
                                                            {"Error", "Error"},
                                                            {"WPOrPB", "Wild pitch or passed ball"},
                                                            {"Bunt", "Bunt"},
                                                            {"SB", "Stolen base"},
                                                            {"CS", "Caught stealing"},
                                                            {"PK", "Picked off"},
                                                            {"MDSafe", "Extra base: safe"},
                                                            {"MDOut", "Extra base: out"}};

QStringList PlayTexts() {
    QStringList texts;
    for (const auto& [column, text] : kPlaySounds) texts.append(QString::fromLatin1(text));
    return texts;
}

}  // namespace

frmSettingsSound::frmSettingsSound(Session& session, Services services, QWidget* parent)
    : SettingsScreen(QString::fromLatin1(kSoundTitle), kSoundTitle, kSoundTitle, services, parent),
      session_(session),
      settings_(session.Settings()),
      plays_(LoadGamePlaySounds(session.Common())) {
    auto* upper = new QHBoxLayout;
    AddSwitches(upper);
    body_->addLayout(upper);
    auto* lower = new QHBoxLayout;
    AddFiles(lower);
    AddGrids(lower);
    body_->addLayout(lower, 1);
    SettingsScreen::Show();
    QStringList there;
    for (int row = 0; row < files_->count(); ++row) there.append(files_->item(row)->text());
    for (SoundGrid* grid : pages_->findChildren<SoundGrid*>()) grid->MarkMissing(there);
    connect(this, &Screen::Closed, this, [this] { services_.sound.Stop(); });
}

void frmSettingsSound::AddSwitches(QBoxLayout* to) {
    auto* game = AddCard(to, "fraGameSounds", tr("During a game"));
    AddCheck(game, "chkGameSounds", tr("Sounds of the Play"), settings_.GameSounds);
    AddCheck(game, "chkUserGamePlaySounds", tr("Use My Own Sounds of the Play"), settings_.UserGamePlaySounds);
    AddCheck(game, "chkDiceRollSounds", tr("Sound of the Dice"), settings_.DiceRollSounds);
    auto* between = AddCard(to, "fraBetween", tr("Between innings"));
    AddCheck(between, "chkBetweenInningsSounds", tr("Sounds between Innings"), settings_.BetweenInningsSounds);
    AddCheck(between, "chkBetweenInnRandom", tr("Play List in Random Order"), settings_.BetweeInnRandom);
    QStringList seconds;
    seconds.append(tr("all of it"));
    for (int i = 1; i <= kLongestSound; ++i) seconds.append(QString::number(i));
    const auto duration = [&](QBoxLayout* card, const char* name, const QString& text, std::int16_t& value) {
        AddList(
            card, name, text, seconds, [&value] { return std::clamp<int>(value, 0, kLongestSound); },
            [&value](int at) { value = static_cast<std::int16_t>(at); });
    };
    duration(between, "cmbSoundDuration", tr("Seconds of a sound"), settings_.SoundDuration);
    auto* other = AddCard(to, "fraOther", tr("Elsewhere"));
    AddCheck(other, "chkMiscSounds", tr("Sounds of the Menus and Lineups"), settings_.MiscSounds);
    duration(other, "cmbAnthemDuration", tr("Seconds of an anthem"), settings_.AnthemDuration);
    other->addStretch(1);
}

void frmSettingsSound::AddFiles(QBoxLayout* to) {
    auto* card = AddCard(to, "fraFiles", tr("My sound files"));
    files_ = new QListWidget;
    files_->setObjectName(QStringLiteral("FileList"));
    files_->setDragEnabled(true);
    card->addWidget(files_, 1);
    auto* hint =
        MakeLabel("lblHint", tr("Files in the folder \"Sound Files\" of your data. Drag one to its occasion, or "
                                "choose both and click Use; Delete takes it away."));
    hint->setWordWrap(true);
    card->addWidget(hint);
    auto* row = new QHBoxLayout;
    card->addLayout(row);
    const auto command = [&](const char* name, const QString& text, void (frmSettingsSound::*deed)()) {
        auto* button = new QPushButton(text);
        button->setObjectName(QString::fromLatin1(name));
        connect(button, &QPushButton::clicked, this, deed);
        row->addWidget(button);
    };
    command("cmdPlay", tr("&Play"), &frmSettingsSound::Play);
    command("cmdUse", tr("&Use"), &frmSettingsSound::Use);
    connect(files_, &QListWidget::itemActivated, this, &frmSettingsSound::Use);
    FillFiles();
}

void frmSettingsSound::FillFiles() {
    const QDir folder(QString::fromStdString(session_.Paths().SoundFiles().string()));
    files_->addItems(folder.entryList({QStringLiteral("*.mid"), QStringLiteral("*.mp3"), QStringLiteral("*.wav")},
                                      QDir::Files, QDir::Name | QDir::IgnoreCase));
    if (files_->count() > 0) files_->setCurrentRow(0);
}

SoundGrid* frmSettingsSound::AddGrid(const QString& tab, const QString& name, const QStringList& occasions) {
    auto* grid = new SoundGrid(name, occasions);
    connect(grid, &SoundGrid::FileSet, this, &frmSettingsSound::Changed);
    pages_->addWidget(grid);
    tabs_->addTab(tab);
    return grid;
}

void frmSettingsSound::AddGrids(QBoxLayout* to) {
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    to->addLayout(column, 1);
    tabs_ = new QTabBar;
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->setExpanding(false);
    pages_ = new QStackedWidget;
    pages_->setObjectName(QStringLiteral("pages"));
    column->addWidget(tabs_);
    column->addWidget(pages_, 1);
    connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
    for (const auto& [tab, name, team] : {std::tuple{tr("&Visitors"), "grdVisitorSounds", "Visitor"},
                                          std::tuple{tr("&Home team"), "grdHomeSounds", "Home"}}) {
        SoundGrid* grid = AddGrid(tab, QString::fromLatin1(name), PlayTexts());
        int row = 0;
        for (const auto& [end, text] : kPlaySounds) {
            const std::string sound = std::string(team) + end;
            Bind([this, grid, row,
                  sound] { grid->SetFile(row, plays_.count(sound) ? QText(plays_[sound]) : QString()); },
                 [this, grid, row, sound] { plays_[sound] = grid->File(row).toStdString(); });
            ++row;
        }
    }
    QStringList places;
    for (std::size_t i = 1; i <= settings_.Sound.size(); ++i) places.append(QString::number(i));
    SoundGrid* list = AddGrid(tr("&Between innings"), QStringLiteral("grdBetweenInnings"), places);
    for (std::size_t i = 0; i < settings_.Sound.size(); ++i)
        Bind([this, list, i] { list->SetFile(static_cast<int>(i), QText(settings_.Sound[i])); },
             [this, list, i] { settings_.Sound[i] = list->File(static_cast<int>(i)).toStdString(); });
    QStringList singles;
    for (const SingleSound& sound : kSingleSounds) singles.append(QString::fromLatin1(sound.text));
    SoundGrid* others = AddGrid(tr("&Others"), QStringLiteral("grdSounds"), singles);
    int row = 0;
    for (const SingleSound& sound : kSingleSounds) {
        const auto file = sound.file;
        Bind([this, others, row, file] { others->SetFile(row, QText(settings_.*file)); },
             [this, others, row, file] { settings_.*file = others->File(row).toStdString(); });
        ++row;
    }
}

void frmSettingsSound::Play() {
    if (files_->currentItem() == nullptr) {
        services_.dialogs.Warn("Please select a sound file.", kSoundTitle);
        return;
    }
    services_.sound.Play(session_.Paths().SoundFiles() / files_->currentItem()->text().toStdString());
}

void frmSettingsSound::Use() {
    auto* grid = qobject_cast<SoundGrid*>(pages_->currentWidget());
    if (files_->currentItem() == nullptr) {
        services_.dialogs.Warn("Please select a sound file.", kSoundTitle);
        return;
    }
    grid->SetFile(grid->currentRow(), files_->currentItem()->text());
}

bool frmSettingsSound::Store() {
    Take();
    Database& common = session_.Common();
    Transaction change(common);
    SaveGameSettings(common, settings_);
    SaveGamePlaySounds(common, plays_);
    change.Commit();
    session_.Settings() = settings_;
    return true;
}

}  // namespace tarvane
