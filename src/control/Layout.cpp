#include "control/Layout.h"

#include <algorithm>
#include <vector>

namespace quorvel {
namespace {

using widgets::Control;
using widgets::Rect;
using widgets::Twips;

// Widths and heights that the outer frame, the options frame and the list leave free, both sides together.
constexpr Twips kOuterMargin = 350;
constexpr Twips kOptionMargin = 240;
constexpr Twips kListMargin = 120;

constexpr Twips kLeastTreeWidth = 1500;
constexpr Twips kTreeHeightAllowance = 480;
constexpr Twips kListGap = 360;
constexpr Twips kSplitterMargin = 2000;
constexpr Twips kDragBarInset = 20;

constexpr Twips kLeastWidth = 7500;
constexpr Twips kLeastHeight = 4500;
constexpr Twips kScrollBar = 255;
constexpr Twips kScrollPage = 1500;

constexpr Twips kTabHeight = 450;
constexpr Twips kPaneTop = 360;  // below the caption of fraList
constexpr Twips kGripWidth = 90;

constexpr Twips kFieldHeight = 405;
constexpr Twips kFieldGap = 75;
constexpr Twips kGroupGap = 330;
constexpr Twips kRowGap = 105;
constexpr Twips kRefreshWidth = 1500;
// Of the labels that a row may begin with, so that the fields after them are in line.
constexpr Twips kLabelWidth = 675;
// Check boxes are in line with the fields above them.
constexpr Twips kFieldColumn = kLabelWidth + kFieldGap;
// The filter of alarms gets there by the move that start-up owes it.
constexpr Twips kAlarmFilterMove = 360;
constexpr Twips kAlarmFilterColumn = kFieldColumn - kAlarmFilterMove;
constexpr Twips kGroupLabelWidth = 600;
constexpr Twips kGroupListWidth = 1500;
constexpr Twips kGroupListHeight = 1215;
constexpr Twips kStepWidth = 225;
// From here on the group order stands beside the button, else below it.
constexpr Twips kWideOptions = 9000;

// A field of the options panel, how wide it is, and how far it stands off the field before it.
struct Field {
  Control* control;
  Twips width;
  Twips gap = kFieldGap;
};

// Fields that stay together on one row.
using FieldGroup = std::vector<Field>;

Twips WidthOf(const FieldGroup& group) {
  Twips width = -kFieldGap;
  for (const Field& field : group) width += field.control->visible() ? field.width + field.gap : 0;
  return width;
}

// What stands in the upper right corner, and how much of it fields must leave free.
struct Corner {
  Twips width = 0;
  Twips height = 0;
};

// Fills rows from the left, beside the corner and then below it, and goes on below where a group does not fit.
class FieldRows {
 public:
  FieldRows(Twips width, Corner corner) : width_(width), corner_(corner) {}

  // `indent`: where the group stands when it begins a row.
  void Place(const FieldGroup& group, Twips indent = 0) {
    const Twips groupWidth = WidthOf(group);
    if (groupWidth <= 0) return;
    if (x_ > 0 && x_ + groupWidth > Room()) {
      x_ = 0;
      y_ += kFieldHeight + kRowGap;
    }
    if (x_ == 0) x_ = indent;
    bool first = true;
    for (const Field& field : group) {
      if (!field.control->visible()) continue;
      if (!first) x_ += field.gap;
      first = false;
      field.control->SetBounds({x_, y_, field.width, kFieldHeight});
      x_ += field.width;
    }
    x_ += kGroupGap;
  }

  // Whether a group finds room in a row beside the corner.
  bool Holds(const FieldGroup& group) const { return WidthOf(group) <= RoomBeside(); }

  Twips height() const { return std::max(y_ + kFieldHeight, corner_.height); }

 private:
  Twips RoomBeside() const { return width_ - corner_.width - kGroupGap; }
  Twips Room() const { return y_ < corner_.height ? RoomBeside() : width_; }

  Twips width_;
  Corner corner_;
  Twips x_ = 0;
  Twips y_ = 0;
};

void PlaceGroupOrder(ProcessLogControls& c, Twips left, Twips top) {
  c.lblGroupBy.SetBounds({left, top, kGroupLabelWidth, kFieldHeight});
  const Twips list = left + kGroupLabelWidth + kFieldGap;
  c.lstGroupBy.SetBounds({list, top, kGroupListWidth, kGroupListHeight});
  c.updGroupBy.SetBounds({list + kGroupListWidth, top, kStepWidth, kGroupListHeight});
}

// Places the fields of the options panel in rows of this width; returns the height that they take.
Twips LayOutOptions(ProcessLogControls& c, Twips width) {
  constexpr Twips kGroupOrderWidth = kGroupLabelWidth + kFieldGap + kGroupListWidth + kStepWidth;
  const bool wide = width >= kWideOptions;
  Corner corner{kRefreshWidth, kFieldHeight};
  c.cmdRefresh.SetBounds({width - kRefreshWidth, 0, kRefreshWidth, kFieldHeight});
  if (c.lstGroupBy.visible()) {
    corner = wide ? Corner{kRefreshWidth + kGroupGap + kGroupOrderWidth, kGroupListHeight}
                  : Corner{kGroupOrderWidth, kFieldHeight + kRowGap + kGroupListHeight};
    PlaceGroupOrder(c, width - corner.width, corner.height - kGroupListHeight);
  }
  FieldRows rows(width, corner);
  rows.Place({{&c.lblState, kLabelWidth}, {&c.cboState, 2175}});
  rows.Place({{&c.lblDate, kLabelWidth}, {&c.dtpDate, 1725}, {&c.dtpHour, 1275}});
  const FieldGroup length{
      {&c.lblDuring, kLabelWidth}, {&c.txtDuring, 525}, {&c.updDuring, kStepWidth, 0}, {&c.cboDuringUnit, 1350}};
  const FieldGroup end{{&c.lblPeriodEnd, 2400}};
  FieldGroup lengthAndEnd = length;
  lengthAndEnd.push_back(end.front());
  if (rows.Holds(lengthAndEnd)) {
    rows.Place(lengthAndEnd);
  } else {
    rows.Place(length);
    rows.Place(end, kFieldColumn);
  }
  rows.Place({{&c.chkCommunicationsFilter, 2700}, {&c.chkGroupByDay, 1800, kGroupGap}}, kFieldColumn);
  rows.Place({{&c.chkAlarmFilter, 2250}}, kAlarmFilterColumn + kAlarmFilterMove);
  return rows.height();
}

// Which scroll bars a control of this size needs. Either takes room from the other.
struct ScrollNeeds {
  ScrollNeeds(Twips width, Twips height) {
    horizontal = width < kLeastWidth;
    vertical = height - (horizontal ? kScrollBar : 0) < kLeastHeight;
    horizontal = width - (vertical ? kScrollBar : 0) < kLeastWidth;
  }
  bool horizontal = false;
  bool vertical = false;
};

void LayOutScrollBars(ProcessLogControls& c, Twips width, Twips height, const ScrollNeeds& needs) {
  const Twips innerWidth = width - (needs.vertical ? kScrollBar : 0);
  const Twips innerHeight = height - (needs.horizontal ? kScrollBar : 0);
  c.HScroll.SetRange(0, needs.horizontal ? kLeastWidth - innerWidth : 0);
  c.HScroll.SetPage(kScrollPage);
  c.HScroll.SetBounds({0, innerHeight, innerWidth, kScrollBar});
  c.HScroll.SetVisible(needs.horizontal);
  c.VScroll.SetRange(0, needs.vertical ? kLeastHeight - innerHeight : 0);
  c.VScroll.SetPage(kScrollPage);
  c.VScroll.SetBounds({innerWidth, 0, kScrollBar, innerHeight});
  c.VScroll.SetVisible(needs.vertical);
  c.fraCorner.SetBounds({innerWidth, innerHeight, kScrollBar, kScrollBar});
  c.fraCorner.SetVisible(needs.horizontal && needs.vertical);
}

}  // namespace

void LayOutControl(ProcessLogControls& c, Twips width, Twips height) {
  const ScrollNeeds needs(width, height);
  LayOutScrollBars(c, width, height, needs);
  const Twips outerWidth = std::max(width - (needs.vertical ? kScrollBar : 0), kLeastWidth) - kOuterMargin;
  const Twips outerHeight = std::max(height - (needs.horizontal ? kScrollBar : 0), kLeastHeight) - kOuterMargin;
  c.fraProcessLog.SetBounds(
      {kOuterMargin / 2 - c.HScroll.value(), kOuterMargin / 2 - c.VScroll.value(), outerWidth, outerHeight});
  c.sstProcessLog.SetBounds({0, 0, outerWidth, kTabHeight});

  const Twips innerWidth = outerWidth - kOptionMargin;
  const Twips optionTop = kTabHeight + kOptionMargin / 2;
  const Twips optionHeight = LayOutOptions(c, innerWidth);
  c.fraOption.SetBounds({kOptionMargin / 2, optionTop, innerWidth, optionHeight});
  const Twips listTop = optionTop + optionHeight + kOptionMargin / 2;
  c.fraList.SetBounds({kOptionMargin / 2, listTop, innerWidth, outerHeight - listTop});

  auto treeWidth = static_cast<float>(c.imgSplitter.bounds().left);
  LayOutPanes(c, treeWidth);
}

void LayOutPanes(ProcessLogControls& c, float& treeWidth) {
  if (!(treeWidth >= kLeastTreeWidth)) treeWidth = kLeastTreeWidth;  // what is no number is corrected too
  const Rect frame = c.fraList.bounds();
  // A width beyond the frame says no more than that there is no room beside the tree.
  const auto width = static_cast<Twips>(std::min(treeWidth, 1e6F));
  const Twips height = frame.height - kTreeHeightAllowance;
  Rect tree{0, kPaneTop, width, height > 0 ? height : c.tvMotherList.bounds().height};
  Rect list;
  const bool alone = !c.tvMotherList.visible();
  const bool beside = !alone && tree.right() + kListGap < frame.width;
  if (alone) {
    list = {0, tree.top, frame.width, tree.height};
  } else if (beside) {
    const Twips left = tree.right() + kGripWidth;
    list = {left, tree.top, frame.width - left, tree.height};
  } else {
    tree.height = (tree.height - kListMargin) / 2;
    list = {tree.left, tree.bottom() + kListMargin, frame.width, tree.height};
  }
  // In the narrow form the grip stands at the frame's edge, from where it can be dragged back.
  const bool dragsBack = !alone && !beside && frame.width > kLeastTreeWidth + kListGap;
  if (!beside) tree.width = frame.width - (dragsBack ? kGripWidth : 0);
  c.tvMotherList.SetBounds(tree);
  c.lvMotherList.SetBounds(list);
  const Twips grip = alone ? c.imgSplitter.bounds().left : tree.right();
  c.imgSplitter.SetBounds({grip, tree.top, kGripWidth, tree.height});
  c.imgSplitter.SetVisible(beside || dragsBack);
}

void BeginSplitterDrag(ProcessLogControls& c) {
  Rect bar = c.imgSplitter.bounds();
  bar.top += kDragBarInset;
  bar.height -= 2 * kDragBarInset;
  c.picSplitter.SetBounds(bar);
  c.picSplitter.SetVisible(true);
}

void MoveSplitterBar(ProcessLogControls& c, Twips x, Twips controlWidth) {
  Rect bar = c.picSplitter.bounds();
  const Twips most = std::max(controlWidth - kSplitterMargin, kSplitterMargin);
  bar.left = std::clamp(c.imgSplitter.bounds().left + x, kSplitterMargin, most);
  c.picSplitter.SetBounds(bar);
}

float EndSplitterDrag(ProcessLogControls& c) {
  c.picSplitter.SetVisible(false);
  return static_cast<float>(c.picSplitter.bounds().left);
}

}  // namespace quorvel
