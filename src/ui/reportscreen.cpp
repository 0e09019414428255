#include "ui/reportscreen.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>

#include "base/error.h"
#include "ui/qtext.h"
#include "ui/readinggrid.h"
#include "ui/theme.h"
#include "ui/userlook.h"

namespace tarvane {

namespace {

struct ReportLink {
    MenuScreen screen;
    const char* name;
    const char* text;
};

constexpr std::array<ReportLink, 4> kLinks{{{MenuScreen::Standings, "lblStandings", "&Standings"},
                                            {MenuScreen::TeamVsTeam, "lblTeamVsTeam", "&Team Versus Team"},
                                            {MenuScreen::LeadersBatting, "lblLeadersBatting", "&Batting Leaders"},
                                            {MenuScreen::LeadersPitching, "lblLeadersPitching", "&Pitching Leaders"}}};

GridText ReadingText(const ReportTable& table, ReportShape shape) {
    GridText text;
    text.matrix = shape == ReportShape::Matrix;
    for (const ReportColumn& column : table.columns) {
        text.heads.push_back(QText(column.title));
        text.left.push_back(column.format == CellFormat::Text);
    }
    for (const auto& row : table.rows) {
        std::vector<QString> cells;
        for (std::size_t column = 0; column < row.size(); ++column)
            cells.push_back(QText(FieldText(row[column], table.columns[column].format)));
        text.rows.push_back(std::move(cells));
    }
    return text;
}

}  // namespace

bool IsReport(MenuScreen screen) {
    for (const ReportLink& link : kLinks)
        if (link.screen == screen) return true;
    return false;
}

ReportScreen::ReportScreen(MenuScreen self, const QString& title, const QString& tabs, Session& session,
                           Services services, QWidget* parent)
    : Screen(parent), session_(session), services_(services) {
    setWindowTitle(title + QStringLiteral(":  ") + QText(SeasonName()) + tr(" Season"));
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 16, 24, 16);
    header_ = new QLabel(this);
    header_->setObjectName(QStringLiteral("lblHeader"));
    header_->setProperty("role", "title");
    header_->setProperty("fontScale", 1.6);
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(tabs);
    tabs_->hide();
    auto* head = new QHBoxLayout;
    head->addWidget(header_, 1);
    head->addWidget(tabs_);
    all->addLayout(head);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("scroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    page_ = new QWidget(scroll);
    page_->setObjectName(QStringLiteral("page"));
    tables_ = new QGridLayout(page_);
    tables_->setContentsMargins(0, 4, 8, 4);
    tables_->setHorizontalSpacing(22);
    scroll->setWidget(page_);
    all->addWidget(scroll, 1);
    auto* foot = new QHBoxLayout;
    options_ = new QHBoxLayout;
    foot->addLayout(options_);
    foot->addStretch(1);
    AddLinks(self, *foot);
    all->addLayout(foot);
    connect(tabs_, &QTabBar::currentChanged, this, [this] { Refill(); });
}

void ReportScreen::AddLinks(MenuScreen self, QBoxLayout& row) {
    for (const ReportLink& link : kLinks) {
        if (link.screen == self) continue;
        auto* button = new QPushButton(QString::fromLatin1(link.text), this);
        button->setObjectName(QString::fromLatin1(link.name));
        button->setProperty("role", "quiet");
        connect(button, &QPushButton::clicked, this, [this, screen = link.screen] { Q_EMIT OpenReport(screen); });
        row.addWidget(button);
    }
    auto* close = new QPushButton(tr("&Close Window"), this);
    close->setObjectName(QStringLiteral("cmdCancel"));
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    row.addWidget(close);
}

QCheckBox* ReportScreen::AddOption(const QString& name, const QString& text) {
    auto* box = new QCheckBox(text, this);
    box->setObjectName(name);
    box->setProperty("role", "plain");
    options_->addWidget(box);
    connect(box, &QCheckBox::toggled, this, [this] { Refill(); });
    return box;
}

void ReportScreen::SetHeader(const std::string& text) {
    header_->setText(QText(text));
}

void ReportScreen::Refill() {
    try {
        Fill();
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), windowTitle().toStdString());
    }
}

void ReportScreen::ShowTables(const std::vector<ReportTable>& tables, int abreast, const QString& grid,
                              const QString& label, ReportShape shape) {
    grids_.clear();
    while (QLayoutItem* item = tables_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const UserLook look = LookFrom(session_.Settings());
    int place = 0;
    for (const ReportTable& table : tables) {
        auto* heading = new QLabel(QText(table.title), page_);
        heading->setObjectName(label + QString::number(place));
        heading->setProperty("role", "caption");
        heading->setProperty("fontScale", 1.1);
        QTableWidget* shown = MakeReadingGrid(ReadingText(table, shape), page_);
        shown->setObjectName(grid + QString::number(place));
        shown->setAccessibleName(heading->text());
        shown->setProperty("fontScale", look.reportsScale);
        WearColors(*shown, look.reports);
        const int row = 2 * (place / abreast), column = place % abreast;
        tables_->addWidget(heading, row, column);
        tables_->addWidget(shown, row + 1, column, Qt::AlignTop);
        grids_.push_back(shown);
        ++place;
    }
    for (int column = 0; column < tables_->columnCount(); ++column)
        tables_->setColumnStretch(column, column < abreast ? 1 : 0);
    // Setting the stretch of a row makes the row.
    const int used = 2 * ((place + abreast - 1) / abreast), known = tables_->rowCount();
    for (int row = 0; row < std::max(known, used + 1); ++row) tables_->setRowStretch(row, row == used ? 1 : 0);
    FitTables();
}

void ReportScreen::FitTables() {
    const double pixels = TextPixels(width(), height());
    ScaleFonts(*this, pixels);
    for (QTableWidget* grid : grids_) FitReadingGrid(*grid, pixels * grid->property("fontScale").toDouble());
}

void ReportScreen::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    FitTables();
}

}  // namespace tarvane
