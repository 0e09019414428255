#include "ui/frmgameover.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>

#include "base/error.h"
#include "engine/boxtext.h"
#include "savegame/savefile.h"
#include "ui/frmboxscore.h"
#include "ui/linescore.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmgameover.h"

namespace tarvane {

namespace {
constexpr const char* kSaveTitle = "Save Game Stats";
}

frmGameOver::frmGameOver(PlayedGame game, Session* session, Services services, QWidget* parent)
    : Screen(parent),
      game_(std::move(game)),
      session_(session),
      services_(services),
      ui_(std::make_unique<Ui::frmGameOver>()) {
    ui_->setupUi(this);
    ShowScore();
    ShowChoices();
    connect(ui_->chkFinished, &QPushButton::clicked, this, &frmGameOver::Finish);
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->chkScore, &QPushButton::clicked, this, [this] { OpenOver(new frmBoxScore(game_)); });
}

frmGameOver::~frmGameOver() = default;

void frmGameOver::ShowScore() {
    const LineScoreView view = MakeLineScore(game_.setup->data, game_.state);
    ui_->lblResult->setText(QText(FinalScoreText(game_.setup->data, game_.state)));
    ui_->lblDecisions->setText(QText(DecisionsText(game_.setup->data, game_.state)));
    QTableWidget* grid = ui_->grdScoreBoard;
    grid->setColumnCount(static_cast<int>(view.heads.size()) + 1);
    grid->setRowCount(3);
    grid->horizontalHeader()->hide();
    grid->verticalHeader()->hide();
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    grid->setShowGrid(false);
    const auto put = [&](int row, int column, const std::string& text, Qt::Alignment alignment) {
        auto* cell = new QTableWidgetItem(QText(text));
        cell->setTextAlignment(alignment | Qt::AlignVCenter);
        const bool gold = row == 0 || column == grid->columnCount() - 4;  // the heads and the runs
        if (gold) cell->setForeground(theme::kGold);
        grid->setItem(row, column, cell);
    };
    for (int column = 0; column + 1 < grid->columnCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        put(0, column + 1, view.heads[at], Qt::AlignHCenter);
        for (const Side side : kBothSides)
            put(side == Side::Visitor ? 1 : 2, column + 1, view.cells[side][at], Qt::AlignHCenter);
    }
    put(1, 0, "  " + view.name[Side::Visitor], Qt::AlignLeft);
    put(2, 0, "  " + view.name[Side::Home], Qt::AlignLeft);
}

void frmGameOver::ShowChoices() {
    const bool scheduled = game_.setup->scheduled.has_value();
    const KeepChoices choices =
        session_ != nullptr ? KeepChoicesOf(session_->Settings(), session_->Screens()) : KeepChoices{};
    ui_->chkStats->setChecked(choices.stats && scheduled);
    ui_->chkStats->setVisible(scheduled);
    ui_->chkCancel->setVisible(scheduled);
    ui_->optHTML->setChecked(choices.files.format != 'T');
    ui_->optText->setChecked(choices.files.format == 'T');
    ui_->chkCondensedBoxScore->setChecked(choices.files.style.condensed);
    ui_->lblHint->setText(scheduled ? tr("Finished writes what is ticked below into the season. Until then the game "
                                         "counts for nothing.")
                                    : tr("An exhibition game: nothing of it counts in the statistics."));
    ui_->chkBoxScore->setChecked(choices.files.boxScore);
    ui_->chkScoreSheet->setChecked(choices.files.scoreSheet);
    for (QWidget* document : {static_cast<QWidget*>(ui_->chkBoxScore), static_cast<QWidget*>(ui_->chkScoreSheet)})
        document->setEnabled(session_ != nullptr);
    connect(ui_->chkBoxScore, &QCheckBox::toggled, this, &frmGameOver::ShowForms);
    connect(ui_->chkScoreSheet, &QCheckBox::toggled, this, &frmGameOver::ShowForms);
    connect(ui_->optHTML, &QRadioButton::toggled, this, &frmGameOver::ShowForms);
    ShowForms();
    ui_->chkFinished->setFocus();
}

// How documents are written matters only if some are.
void frmGameOver::ShowForms() {
    const bool any = ui_->chkBoxScore->isChecked() || ui_->chkScoreSheet->isChecked();
    ui_->optHTML->setEnabled(any);
    ui_->optText->setEnabled(any);
    ui_->chkCondensedBoxScore->setEnabled(ui_->chkBoxScore->isChecked());
    ui_->chkIncludeTeamLogo->setEnabled(ui_->chkBoxScore->isChecked() && ui_->optHTML->isChecked());
}

KeepChoices frmGameOver::Choices() const {
    KeepChoices choices;
    choices.stats = ui_->chkStats->isChecked() && game_.setup->scheduled.has_value();
    choices.files.boxScore = ui_->chkBoxScore->isChecked();
    choices.files.scoreSheet = ui_->chkScoreSheet->isChecked();
    choices.files.format = ui_->optText->isChecked() ? 'T' : 'H';
    choices.files.style.condensed = ui_->chkCondensedBoxScore->isChecked();
    if (ui_->chkIncludeTeamLogo->isChecked() && session_ != nullptr)
        choices.files.teamImages = session_->Paths().TeamImages();
    return choices;
}

void frmGameOver::Finish() {
    if (session_ != nullptr) {
        ui_->lblProgress->setText(tr("Building Results - Please Wait ..."));
        ui_->lblProgress->repaint();
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        std::string failure;
        std::vector<std::string> missing;
        try {
            missing = KeepGame(*session_, game_, Choices());
        } catch (const UserError& error) {
            failure = error.what();
        }
        QGuiApplication::restoreOverrideCursor();
        ui_->lblProgress->clear();
        if (!failure.empty()) {  // the season is as it was, and so is the game: he can try again
            services_.dialogs.Warn(failure, kSaveTitle);
            return;
        }
        for (const std::string& message : missing) services_.dialogs.Warn(message, kSaveTitle);
    }
    DropSavedGame();
    mayClose_ = true;
    close();
}

// The file of a game that was taken up again is of no more use.
void frmGameOver::DropSavedGame() {
    if (game_.resumedFrom.empty()) return;
    try {
        DeleteSavedGame(game_.resumedFrom);
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), kSaveTitle);
    }
}

bool frmGameOver::MayClose() {
    if (mayClose_ || !game_.setup->scheduled || session_ == nullptr) return true;
    const std::string then =
        game_.resumedFrom.empty() ? "it will have to be played again" : "it will go on again from where it was saved";
    return services_.dialogs.Ask(
               "This game is not in the season yet. Do you want to leave it without saving?\nClick Yes and " + then +
                   ", otherwise Click No.",
               "Game Over") == Reply::Yes;
}

void frmGameOver::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    const double pixels = TextPixels(width(), height());
    ui_->grdScoreBoard->setFixedHeight(static_cast<int>(pixels * 8));
    ui_->grdScoreBoard->setColumnWidth(0, std::max(150, std::min(width(), 1200) / 5));
}

}  // namespace tarvane
