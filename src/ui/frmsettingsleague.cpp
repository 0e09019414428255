#include "ui/frmsettingsleague.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "data/rules.h"

namespace tarvane {

namespace {

constexpr const char* kTitle = "League Rules/Settings";
constexpr int kWorstOutOfPos = 25;
constexpr char kErrorLetters[] = "ABCDEFGHJKLMNPRSTUVWXYZ";

QStringList ErrorLetterTexts() {
    QStringList texts;
    for (const char* letter = kErrorLetters; *letter != 0; ++letter) texts.append(QString(QLatin1Char(*letter)));
    return texts;
}

QStringList OutOfPosTexts() {
    QStringList texts;
    for (int rating = 0; rating >= -kWorstOutOfPos; --rating) texts.append(QString::number(rating));
    return texts;
}

// Where the ten rows of rest of a role begin.
std::size_t FirstRow(char pitcherType) {
    return pitcherType == 'R' ? 0 : 5;
}

}  // namespace

frmSettingsLeague::frmSettingsLeague(Session& session, Services services, QWidget* parent)
    : SettingsScreen(QString::fromLatin1(kTitle), kTitle, kTitle, services, parent),
      session_(session),
      rules_(LoadLeagueRules(session.Seasons().Season())) {
    auto* upper = new QHBoxLayout;
    auto* middle = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    AddGameRules(upper);
    AddPitchingRules(middle);
    AddFieldingRules(middle);
    AddOutOfPosition(right);
    upper->addLayout(middle);
    upper->addLayout(right);
    body_->addLayout(upper);
    auto* lower = new QHBoxLayout;
    AddRest(lower, 'R', tr("Rest of relievers"));
    AddRest(lower, 'S', tr("Rest of starters"));
    body_->addLayout(lower);
    body_->addStretch(1);
    auto* defaults = new QPushButton(tr("Pitcher &Rest Defaults"));
    defaults->setObjectName(QStringLiteral("chkRestDefaults"));
    defaults->setProperty("role", "quiet");
    connect(defaults, &QPushButton::clicked, this, &frmSettingsLeague::RestDefaults);
    commands_->addWidget(defaults);
    Show();
}

void frmSettingsLeague::Exclude(QCheckBox* one, QCheckBox* other) {
    for (const auto& [on, off] : {std::pair{one, other}, std::pair{other, one}})
        connect(on, &QCheckBox::toggled, off, [off = off](bool checked) {
            if (checked) off->setChecked(false);
        });
}

void frmSettingsLeague::AddGameRules(QBoxLayout* to) {
    auto* card = AddCard(to, "fraGame", tr("The game"));
    AddCheck(card, "chkLeagueDH", tr("DH Rule for Entire League"), rules_.LeagueDH);
    AddCheck(card, "chkDHHomeTeam", tr("DH Rule by Home Team"), rules_.HometeamDH);
    AddCheck(card, "chkParkEffects", tr("Use Ballpark Effects"), rules_.UseParkEffects);
    auto* year = AddCheck(card, "chkYearEffects", tr("Use Year Effects"), rules_.UseYearEffects);
    defensiveEras_ = rules_.DefensiveErasInForce();
    auto* era = AddCheck(card, "chkDefEra", tr("Use Defensive Eras"), defensiveEras_);
    Exclude(year, era);
    AddCheck(card, "chkInjuries", tr("Use YellowX Injuries"), rules_.UseYellowXInjuryChart);
    AddCheck(card, "chkBatterBBSORating", tr("Use Batter BB/SO Rating"), rules_.BatterBBSORating);
    AddCheck(card, "chkFactorActualUsage", tr("Computer Mgr Factors Actual Usage"), rules_.FactorActualUsage);
    AddCheck(card, "chkIgnoreSchedLineups", tr("Ignore Scheduled Lineups"), rules_.IgnoreSchedLineups);
    card->addStretch(1);
}

void frmSettingsLeague::AddPitchingRules(QBoxLayout* to) {
    auto* card = AddCard(to, "fraPitching", tr("Pitching"));
    auto* stamina = AddCheck(card, "chkPitcherStamina", tr("Use Pitcher Stamina Rule"), rules_.PitcherStamina);
    auto* moderate =
        AddCheck(card, "chkPitcherStaminaSecondary", tr("Use Moderate Stamina Level"), rules_.PitcherStaminaSecondary);
    connect(moderate, &QCheckBox::toggled, stamina, [stamina](bool on) {
        if (on) stamina->setChecked(true);
    });
    connect(stamina, &QCheckBox::toggled, moderate, [moderate](bool on) {
        if (!on) moderate->setChecked(false);
    });
    relieverMax_ = AddList(
        card, "cmbRelieverMaxIP", tr("Most innings of a reliever"), InningTexts(3),
        [this] { return PlaceOfLimit(rules_.RelieverMaxIPOuts); },
        [this](int place) { rules_.RelieverMaxIPOuts = LimitAt(place); });
}

void frmSettingsLeague::AddFieldingRules(QBoxLayout* to) {
    auto* card = AddCard(to, "fraFielding", tr("Fielding"));
    AddCheck(card, "chkErrorRating", tr("Use Error Ratings"), rules_.UseErrorRatings);
    AddCheck(card, "chkDoNotCauseErrorsFromOuts", tr("Do Not Cause Errors from Outs"), rules_.DoNotCauseErrorsFromOuts);
    AddCheck(card, "chkAutoOutsForOF", tr("Auto Outs for OF Positions"), rules_.AutoOutsForOF);
    AddCheck(card, "chkSpecialError", tr("Use Special Error Results"), rules_.SpecialErrorRule);
    AddCheck(card, "chkCatcherORating", tr("Use Catcher O-Rating"), rules_.CatcherORating);
    card->addStretch(1);
}

void frmSettingsLeague::AddOutOfPosition(QBoxLayout* to) {
    struct Place {
        const char *list, *letterList, *text;
        std::int16_t LeagueRules::*rating;
        char LeagueRules::*letter;
    };
    static constexpr Place kPlaces[]{
        {"cmbCOutOfPos", "cmbCOutOfPosER", "Catcher", &LeagueRules::COutOfPos, &LeagueRules::COutOfPosErrorRating},
        {"cmb1BOutOfPos", "cmb1BOutOfPosER", "First base", &LeagueRules::FirstBaseOutOfPos,
         &LeagueRules::FirstBaseOutOfPosErrorRating},
        {"cmbIFOutOfPos", "cmbIFOutOfPosER", "Infield", &LeagueRules::IFOutOfPos, &LeagueRules::IFOutOfPosErrorRating},
        {"cmbCFOutOfPos", "cmbCFOutOfPosER", "Center field", &LeagueRules::CFOutOfPos,
         &LeagueRules::CFOutOfPosErrorRating},
        {"cmbOFOutOfPos", "cmbOFOutOfPosER", "Left and right field", &LeagueRules::OFOutOfPos,
         &LeagueRules::OFOutOfPosErrorRating}};
    auto* card = AddCard(to, "fraOutOfPos", tr("Out of position"));
    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabel("lblOutOfPosRating", tr("Defense")), 0, 1);
    grid->addWidget(MakeLabel("lblOutOfPosLetter", tr("Error rating")), 0, 2);
    int row = 0;
    for (const Place& place : kPlaces) {
        ++row;
        auto* label = MakeLabel(nullptr, tr(place.text));
        label->setObjectName(QStringLiteral("lbl") + QString::fromLatin1(place.list));
        grid->addWidget(label, row, 0);
        const auto rating = place.rating;
        const auto letter = place.letter;
        grid->addWidget(MakeList(
                            place.list, OutOfPosTexts(),
                            [this, rating] { return std::clamp<int>(-(rules_.*rating), 0, kWorstOutOfPos); },
                            [this, rating](int at) { rules_.*rating = static_cast<std::int16_t>(-at); }),
                        row, 1);
        grid->addWidget(MakeList(
                            place.letterList, ErrorLetterTexts(),
                            [this, letter] {
                                const std::string letters(kErrorLetters);
                                const std::size_t at = letters.find(rules_.*letter);
                                return static_cast<int>(std::min(at, letters.size() - 1));
                            },
                            [this, letter](int at) { rules_.*letter = kErrorLetters[std::max(at, 0)]; }),
                        row, 2);
    }
    card->addLayout(grid);
    card->addStretch(1);
}

void frmSettingsLeague::AddRest(QBoxLayout* to, char pitcherType, const QString& caption) {
    const QString type(QLatin1Char{pitcherType});
    auto* card = AddCard(to, pitcherType == 'R' ? "fraRestR" : "fraRestS", caption);
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(3);
    const std::pair<const char*, QString> heads[]{
        {"From", tr("Innings from")}, {"To", tr("to")}, {"Days", tr("days of rest")}};
    for (int column = 0; column < 3; ++column) {
        auto* head = MakeLabel(nullptr, heads[column].second);
        head->setObjectName(QStringLiteral("lblRest%1%2").arg(QString::fromLatin1(heads[column].first), type));
        grid->addWidget(head, 0, column);
    }
    for (std::size_t i = 0; i < 5; ++i) {
        const std::size_t at = FirstRow(pitcherType) + i;
        const auto list = [&](const char* kind, const QStringList& texts, int RestChoice::*part) {
            const std::string name = kind + type.toStdString() + std::to_string(i + 1);
            return MakeList(
                name.c_str(), texts, [this, at, part] { return ChoiceOf(rules_.rest[at]).*part; }, [](int) {});
        };
        rest_[at] = {list("cmbIPFrom", RestInningTexts(), &RestChoice::from),
                     list("cmbIPTo", RestInningTexts(), &RestChoice::to),
                     list("cmbDays", RestDayTexts(), &RestChoice::days)};
        const int row = static_cast<int>(i) + 1;
        grid->addWidget(rest_[at].from, row, 0);
        grid->addWidget(rest_[at].to, row, 1);
        grid->addWidget(rest_[at].days, row, 2);
    }
    card->addLayout(grid);
}

void frmSettingsLeague::RestDefaults() {
    const auto rows = DefaultRest();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const RestChoice choice = ChoiceOf(rows[i]);
        rest_[i].from->setCurrentIndex(choice.from);
        rest_[i].to->setCurrentIndex(choice.to);
        rest_[i].days->setCurrentIndex(choice.days);
    }
    relieverMax_->setCurrentIndex(PlaceOfLimit(kDefaultRelieverMaxIPOuts));
    Changed();
}

std::array<RestChoice, 5> frmSettingsLeague::Choices(char pitcherType) const {
    std::array<RestChoice, 5> choices;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const RestLists& lists = rest_[FirstRow(pitcherType) + i];
        choices[i] = {lists.from->currentIndex(), lists.to->currentIndex(), lists.days->currentIndex()};
    }
    return choices;
}

bool frmSettingsLeague::RestOk(char pitcherType) {
    const auto fault = FindRestFault(Choices(pitcherType));
    if (!fault) return true;
    const RestLists& lists = rest_[FirstRow(pitcherType) + fault->row];
    const std::string where = std::string(pitcherType == 'R' ? "Relievers" : "Starters") + ", row ";
    Refuse(fault->text + "\n" + where + std::to_string(fault->row + 1) + ".",
           fault->list == RestList::From ? lists.from
           : fault->list == RestList::To ? lists.to
                                         : lists.days);
    return false;
}

bool frmSettingsLeague::Store() {
    if (!RestOk('R') || !RestOk('S')) return false;
    Take();
    rules_.DefChartEraID = defensiveEras_ ? 1 : -1;
    for (const char type : {'R', 'S'}) {
        const auto choices = Choices(type);
        for (std::size_t i = 0; i < choices.size(); ++i) rules_.rest[FirstRow(type) + i] = RowOf(choices[i], type);
    }
    Database& season = session_.Seasons().Season();
    Transaction change(season);
    SaveLeagueRules(season, rules_);
    change.Commit();
    session_.Seasons().Rules() = LoadLeagueRules(season);
    return true;
}

}  // namespace tarvane
