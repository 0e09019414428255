#pragma once

#include <QTabBar>
#include <QTableWidget>
#include <vector>

#include "data/session.h"
#include "reports/table.h"
#include "ui/mainmenu.h"
#include "ui/screen.h"
#include "ui/services.h"

class QBoxLayout;
class QCheckBox;
class QGridLayout;
class QLabel;

namespace tarvane {

// A list begins with names, a matrix is columns of one kind.
enum class ReportShape { List, Matrix };

// What the report screens share: a heading, tabs for the leagues, a row of options, the tables of the report under
// their headings, and links to the other reports.
class ReportScreen : public Screen {
    Q_OBJECT

  public:
    ReportScreen(MenuScreen self, const QString& title, const QString& tabs, Session& session, Services services,
                 QWidget* parent);

  Q_SIGNALS:
    // Another report takes this one's place.
    void OpenReport(tarvane::MenuScreen report);

  protected:
    // The report anew, as tabs and options stand. Called by Refill, which shows faults of the store.
    virtual void Fill() = 0;
    void Refill();

    // The tables under their headings, so many side by side; grids and headings are named with their places behind.
    void ShowTables(const std::vector<ReportTable>& tables, int abreast, const QString& grid, const QString& label,
                    ReportShape shape = ReportShape::List);
    void SetHeader(const std::string& text);
    // A box beside the links whose changes fill the report anew.
    QCheckBox* AddOption(const QString& name, const QString& text);
    Database& Season() { return session_.Seasons().Season(); }
    const std::string& SeasonName() const { return session_.Seasons().ActiveSeason(); }

    void resizeEvent(QResizeEvent* event) override;

    QTabBar* tabs_;
    QBoxLayout* options_;  // left of the links

  private:
    void AddLinks(MenuScreen self, QBoxLayout& row);
    void FitTables();

    Session& session_;
    Services services_;
    QLabel* header_;
    QWidget* page_;
    QGridLayout* tables_;
    std::vector<QTableWidget*> grids_;
};

// Every report that a link can open.
bool IsReport(MenuScreen screen);

}  // namespace tarvane
