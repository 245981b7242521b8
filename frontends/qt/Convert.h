// Texts, places and dates on their way between the library and Qt.
#pragma once

#include <QDate>
#include <QRect>
#include <QString>
#include <QTime>
#include <string>
#include <string_view>

#include "platform/Dates.h"
#include "widgets/Control.h"

namespace quorvel::qt {

// Bytes that are not UTF-8 become the replacement character.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

// Qt's pixels are logical: at 200 % it draws each with four of the screen, so twips need no scale of their own.
constexpr int ToPixels(widgets::Twips twips) {
  const widgets::Twips half = widgets::kTwipsPerPixel / 2;
  return (twips >= 0 ? twips + half : twips - half) / widgets::kTwipsPerPixel;
}
constexpr widgets::Twips ToTwips(int pixels) {
  return pixels * widgets::kTwipsPerPixel;
}

// Edges are rounded, not sizes: places that touch in twips touch on the screen.
inline QRect ToPixels(const widgets::Rect& place) {
  const QPoint topLeft(ToPixels(place.left), ToPixels(place.top));
  return {topLeft, QSize(ToPixels(place.right()) - topLeft.x(), ToPixels(place.bottom()) - topLeft.y())};
}

// The day and the time of day of a date; both invalid when it cannot be shown.
struct QtDate {
  QDate day;
  QTime time;
};
inline QtDate ToQt(DateValue date) {
  const auto civil = CivilFromDate(date);
  if (!civil) return {};
  return {QDate(civil->year, static_cast<int>(civil->month), static_cast<int>(civil->day)),
          QTime(civil->hour, civil->minute, civil->second)};
}
inline DateValue FromQt(QDate day) {
  return DateFromCivil({day.year(), static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day())});
}
// The fraction of a day.
inline DateValue FromQt(QTime time) {
  return TimePart(DateFromCivil({1899, 12, 30, time.hour(), time.minute(), time.second()}));
}

}  // namespace quorvel::qt
