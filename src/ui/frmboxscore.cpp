#include "ui/frmboxscore.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/qtext.h"
#include "ui/readinggrid.h"
#include "ui/theme.h"

namespace tarvane {

namespace {

constexpr int kSideBySide = 1800;  // pixels for two batting tables of a box score

QString GridName(Side side, const char* what) {
    return (side == Side::Visitor ? QStringLiteral("grdVisitor") : QStringLiteral("grdHome")) + QLatin1String(what);
}

QLabel* MakeLabel(const QString& text, const char* role, double scale, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("lbl") + QLatin1String(role));
    label->setProperty("role", role);
    label->setProperty("fontScale", scale);
    return label;
}

}  // namespace

GameDocumentScreen::GameDocumentScreen(PlayedGame game, const QString& title, QWidget* parent)
    : Screen(parent), game_(std::move(game)) {
    box_ = MakeBoxDocument(game_.setup->data, game_.state, game_.state.GameOverFlag ? game_.seconds : -1);
    setWindowTitle(tr("Tarvane PC Baseball - ") + title);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 14, 24, 14);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("scroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* page = new QWidget(scroll);
    page->setObjectName(QStringLiteral("page"));
    auto* down = new QVBoxLayout(page);
    down->setContentsMargins(0, 0, 8, 0);
    BuildHead(*down);
    sides_ = new QBoxLayout(QBoxLayout::TopToBottom);
    sides_->setSpacing(18);
    for (const Side side : kBothSides) {
        side_[side] = new QVBoxLayout;
        side_[side]->addWidget(MakeLabel(QText(box_.side[side].team), "caption", 1.2, page));
        sides_->addLayout(side_[side], 1);
    }
    down->addLayout(sides_);
    if (!box_.elapsed.empty()) down->addWidget(MakeLabel(QText(box_.elapsed), "small", 1.0, page));
    down->addStretch(1);
    scroll->setWidget(page);
    all->addWidget(scroll, 1);
    foot_ = new QHBoxLayout;
    foot_->addStretch(1);
    all->addLayout(foot_);
    AddLink(QStringLiteral("chkClose"), tr("C&lose Window"));
}

void GameDocumentScreen::BuildHead(QVBoxLayout& all) {
    all.addWidget(MakeLabel(QText(box_.title), "title", 1.5, this));
    all.addWidget(MakeLabel(QText(box_.place), "small", 1.0, this));
    QTableWidget* line = MakeTable(QStringLiteral("grdTeams"), box_.lineScore, false, this);
    all.addWidget(line);
}

QTableWidget* GameDocumentScreen::MakeTable(const QString& name, const DocumentTable& table, bool matrix,
                                            QWidget* parent) {
    GridText text;
    for (const std::string& head : table.heads) {
        text.heads.push_back(QText(head));
        text.left.push_back(text.left.empty());
    }
    for (const auto& row : table.rows) {
        std::vector<QString> cells;
        for (const std::string& cell : row) cells.push_back(QText(cell));
        text.rows.push_back(std::move(cells));
    }
    text.totals = table.totals;
    text.matrix = matrix;
    QTableWidget* grid = MakeReadingGrid(text, parent);
    grid->setObjectName(name);
    grids_.push_back(grid);
    return grid;
}

void GameDocumentScreen::AddTable(Side side, const QString& name, const QString& caption, const DocumentTable& table,
                                  bool matrix) {
    QTableWidget* grid = MakeTable(name, table, matrix, this);
    grid->setAccessibleName(QText(box_.side[side].team) + QStringLiteral(", ") + caption);
    side_[side]->addWidget(grid);
}

void GameDocumentScreen::AddNotes(Side side, const std::vector<DocumentNote>& notes) {
    QString text;
    for (const DocumentNote& note : notes) {
        if (!text.isEmpty()) text += QLatin1Char('\n');
        text += QText(note.label) + QLatin1Char(' ') + QText(note.text);
    }
    if (text.isEmpty()) return;
    QLabel* label = MakeLabel(text, "small", 1.0, this);
    label->setWordWrap(true);
    side_[side]->addWidget(label);
}

QPushButton* GameDocumentScreen::AddLink(const QString& name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    foot_->insertWidget(foot_->count() > 1 ? 1 : foot_->count(), button);
    if (name == QStringLiteral("chkClose"))
        connect(button, &QPushButton::clicked, this, &QWidget::close);
    else
        button->setProperty("role", "quiet");
    return button;
}

void GameDocumentScreen::GiveWayTo(Screen* other) {
    other->setAttribute(Qt::WA_DeleteOnClose);
    connect(other, &Screen::Closed, this, &QWidget::close);
    other->setGeometry(geometry());
    other->setWindowState(windowState());
    other->show();
    hide();
}

void GameDocumentScreen::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    sides_->setDirection(width() >= kSideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // Two tables beside each other have the letters of a window half as wide.
    const double pixels = TextPixels(width(), height()) * (width() >= kSideBySide ? 0.78 : 1.0);
    ScaleFonts(*this, pixels);
    for (QTableWidget* grid : grids_) FitReadingGrid(*grid, pixels);
    grids_.front()->setMaximumWidth(static_cast<int>(pixels * 48));  // the innings stay near the names
}

frmBoxScore::frmBoxScore(PlayedGame game, QWidget* parent)
    : GameDocumentScreen(std::move(game), tr("Box Score"), parent) {
    for (const Side side : kBothSides) {
        AddTable(side, GridName(side, "Batters"), tr("batting"), box_.side[side].batting, false);
        AddNotes(side, box_.side[side].notes);
        AddTable(side, GridName(side, "Pitchers"), tr("pitching"), box_.side[side].pitching, false);
        side_[side]->addStretch(1);
    }
    connect(AddLink(QStringLiteral("chkScoreSheet"), tr("View S&core Sheet")), &QPushButton::clicked, this,
            [this] { GiveWayTo(new frmScoreSheet(game_)); });
}

frmScoreSheet::frmScoreSheet(PlayedGame game, QWidget* parent)
    : GameDocumentScreen(std::move(game), tr("Score Sheet"), parent) {
    for (const Side side : kBothSides) {
        AddTable(side, GridName(side, "Batters"), tr("batting"), ScoreSheetTable(game_.sheet, box_, side), false);
        AddTable(side, GridName(side, "Pitchers"), tr("pitching"), box_.side[side].pitching, false);
        side_[side]->addStretch(1);
    }
    connect(AddLink(QStringLiteral("chkBoxScore"), tr("View Box S&core")), &QPushButton::clicked, this,
            [this] { GiveWayTo(new frmBoxScore(game_)); });
}

}  // namespace tarvane
