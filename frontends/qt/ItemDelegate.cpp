#include "qt/ItemDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "qt/Guard.h"

namespace quorvel::qt {
namespace {

constexpr qsizetype kMostShown = 1000;
constexpr qsizetype kMostInToolTip = 4000;

// Paints an icon as Active whatever the style asks for.
class ActiveEngine final : public QIconEngine {
 public:
  explicit ActiveEngine(QIcon icon) : icon_(std::move(icon)) {}
  QIconEngine* clone() const override { return new ActiveEngine(*this); }
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State state) override {
    icon_.paint(painter, rect, Qt::AlignCenter, QIcon::Active, state);
  }

 private:
  QIcon icon_;
};

QColor Blend(const QColor& under, const QColor& over, qreal share) {
  const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

bool EndsLine(QChar c) {
  return c == QChar::LineFeed || c == QChar::CarriageReturn || c == QChar::LineSeparator ||
         c == QChar::ParagraphSeparator;
}

bool IsControl(QChar c) {
  return c < QChar::Space;
}

QVariant PaintedText(const QModelIndex& index) {
  QVariant text = index.data(kPaintedTextRole);
  return text.isValid() ? text : index.data(Qt::DisplayRole);
}

}  // namespace

QString ItemDelegate::displayText(const QVariant& value, const QLocale& /*locale*/) const {
  return GuardedOr(QString(), [&] {
    const QString text = value.toString();
    const auto first = std::find_if_not(text.begin(), text.end(), EndsLine);
    const auto last = std::find_if(first, text.end(), EndsLine);
    const bool moreFollows = !std::all_of(last, text.end(), [](QChar c) { return c.isSpace(); });
    QString line(first, std::min<qsizetype>(last - first, kMostShown));
    std::replace_if(line.begin(), line.end(), IsControl, QChar::Space);
    if (moreFollows || line.size() < last - first) line.append(QChar(u'…'));
    return line;
  });
}

int ItemDelegate::RowHeight(const QWidget& view) {
  constexpr int kAroundText = 7;
  constexpr int kAroundIcon = 6;
  const int icon = view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &view);
  return std::max(view.fontMetrics().height() + kAroundText, icon + kAroundIcon);
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return GuardedOr(QSize(), [&] {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (option.widget != nullptr) size.setHeight(RowHeight(*option.widget));
    return size;
  });
}

void ItemDelegate::QuietenUnlessFocused(QStyleOptionViewItem& option, const QWidget& view) {
  constexpr qreal kShareOfHighlight = 0.28;
  if (view.hasFocus()) return;
  QPalette& palette = option.palette;
  const QColor quiet = Blend(palette.color(QPalette::Base), palette.color(QPalette::Highlight), kShareOfHighlight);
  palette.setColor(QPalette::Inactive, QPalette::Highlight, quiet);
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, palette.color(QPalette::Text));
  option.state &= ~QStyle::State_Active;
}

bool ItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
  return GuardedOr(false, [&] {
    if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool cutOff =
        displayText(text, option.locale) != text || sizeHint(option, index).width() > option.rect.width();
    // Rich text would be drawn as such: data is shown as it stands.
    const QString toolTip = cutOff ? text.left(kMostInToolTip).toHtmlEscaped() : QString();
    QToolTip::showText(event->globalPos(), toolTip.isEmpty() ? toolTip : "<p style='white-space:pre-wrap'>" + toolTip,
                       view, option.rect);
    return true;
  });
}

void ItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  Guarded([&] {
    // What QStyledItemDelegate would do as well, but for a text that is not asked for as a whole.
    option->index = index;
    option->styleObject = nullptr;  // nothing in a cell moves
    if (const QVariant font = index.data(Qt::FontRole); font.isValid()) {
      option->font = font.value<QFont>().resolve(option->font);
      option->fontMetrics = QFontMetrics(option->font);
    }
    if (const QVariant alignment = index.data(Qt::TextAlignmentRole); alignment.isValid()) {
      option->displayAlignment = alignment.value<Qt::Alignment>();
    }
    if (const QVariant colour = index.data(Qt::ForegroundRole); colour.isValid()) {
      option->palette.setBrush(QPalette::Text, colour.value<QBrush>());
    }
    if (const QVariant icon = index.data(Qt::DecorationRole); icon.isValid()) {
      option->features |= QStyleOptionViewItem::HasDecoration;
      option->icon = icon.value<QIcon>();
    }
    option->features |= QStyleOptionViewItem::HasDisplay;
    option->text = displayText(PaintedText(index), option->locale);

    option->state &= ~QStyle::State_HasFocus;  // the selection says where one is; a frame a cell says it twice
    const bool quiet = option->state.testFlag(QStyle::State_Selected) && !option->state.testFlag(QStyle::State_Active);
    if (quiet && !option->icon.isNull()) option->icon = QIcon(new ActiveEngine(option->icon));
  });
}

}  // namespace quorvel::qt
