#include "ui/gamecalendar.h"

#include <QLocale>
#include <QPainter>
#include <QTextCharFormat>

#include "ui/qtext.h"
#include "ui/theme.h"

namespace tarvane {

GameCalendar::GameCalendar(QWidget* parent) : QCalendarWidget(parent) {
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    setFirstDayOfWeek(Qt::Sunday);
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    QTextCharFormat head;
    head.setForeground(theme::kInkSoft);
    head.setBackground(theme::kCream);
    head.setFontWeight(QFont::Bold);
    setHeaderTextFormat(head);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, QTextCharFormat());
}

void GameCalendar::SetDays(const std::map<std::string, DayCount>& days) {
    days_.clear();
    for (const auto& [date, count] : days) {
        const QDate day = QDate::fromString(QText(date), Qt::ISODate);
        if (day.isValid()) days_[day] = count;
    }
    updateCells();
}

std::string GameCalendar::Day() const {
    return selectedDate().toString(Qt::ISODate).toStdString();
}

void GameCalendar::SetDay(const std::string& date) {
    const QDate day = QDate::fromString(QText(date), Qt::ISODate);
    if (day.isValid()) setSelectedDate(day);
}

void GameCalendar::SetTextPixels(double pixels) {
    for (QWidget* part : findChildren<QWidget*>()) {
        QFont partFont = part->font();
        partFont.setPixelSize(static_cast<int>(pixels));
        part->setFont(partFont);
    }
}

QString GameCalendar::DayText() const {
    return locale().toString(selectedDate(), QStringLiteral("dddd, MMMM d, yyyy"));
}

void GameCalendar::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
    const auto found = days_.find(date);
    const DayCount count = found == days_.end() ? DayCount{} : found->second;
    const bool chosen = date == selectedDate(), other = date.month() != monthShown();
    const bool played = count.games > 0 && count.played == count.games;
    const QColor open(0xF3, 0xDC, 0x9A);
    painter->save();
    painter->fillRect(rect, chosen ? theme::kField : theme::kPaper);
    const QRect inner = rect.adjusted(2, 2, -2, -2);
    if (!chosen && count.games > 0 && !played) painter->fillRect(inner, open);
    QFont font = painter->font();
    font.setBold(count.games > 0 && !played);
    painter->setFont(font);
    QColor ink = count.games == 0 ? QColor(0xA9, 0xA1, 0x8C) : theme::kInk;
    if (played || other) ink = theme::kInkSoft;
    if (chosen) ink = theme::kCream;
    painter->setPen(ink);
    const QRect number = count.games > 0 ? inner.adjusted(0, 0, 0, -inner.height() / 3) : inner;
    painter->drawText(number, Qt::AlignCenter, QString::number(date.day()));
    if (count.games > 0) {
        font.setBold(false);
        font.setPixelSize(std::max(9, font.pixelSize() * 3 / 4));
        painter->setFont(font);
        QString note = count.games == 1 ? tr("1 game") : tr("%1 games").arg(count.games);
        if (played) note = QStringLiteral("\u2713");
        painter->drawText(inner.adjusted(0, inner.height() / 2, 0, 0), Qt::AlignCenter, note);
    }
    painter->restore();
}

}  // namespace tarvane
