#pragma once

#include <QCalendarWidget>
#include <map>
#include <string>

#include "ui/schedulebook.h"

namespace tarvane {

// A month at a time, with what the schedule holds on each day: days with games to play stand out, days that are played
// are ticked off.
class GameCalendar : public QCalendarWidget {
    Q_OBJECT

  public:
    explicit GameCalendar(QWidget* parent = nullptr);

    void SetDays(const std::map<std::string, DayCount>& days);  // by date, yyyy-mm-dd
    // The day chosen, and one to choose, as the tables hold dates.
    std::string Day() const;
    void SetDay(const std::string& date);
    // The size of its texts: under a style sheet the inner parts don't take over the font of the whole.
    void SetTextPixels(double pixels);
    // "Saturday, April 12, 1975".
    QString DayText() const;

  protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;

  private:
    std::map<QDate, DayCount> days_;
};

}  // namespace tarvane
