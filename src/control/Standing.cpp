#include "control/Standing.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "util/ListViewSort.h"

namespace quorvel {
namespace {

using widgets::ListView;
using widgets::NodeId;
using widgets::RowRanges;

// How many rows, or nodes, of what is in sight are taken down: one will do when those before it are gone.
constexpr std::size_t kInSight = 8;

// What a walk knows of a key: how many it has met so far, which of those looked for have it, in their order, and which
// of these comes next.
struct KeyMet {
  std::size_t count = 0;
  std::vector<std::size_t> known;
  std::size_t next = 0;
};
using KeysMet = std::unordered_map<std::string, KeyMet>;

template <class Known>
KeysMet KeysOf(const std::vector<Known>& all) {
  KeysMet keys;
  for (std::size_t i = 0; i < all.size(); ++i) keys[all[i].key].known.push_back(i);
  return keys;
}

// Walks over the rows up to `last` and calls visit(row, key met) for those of a known key.
template <class Visit>
void WalkRows(const ListView& list, std::size_t last, KeysMet& keys, Visit visit) {
  std::string key;
  for (std::size_t row = 0; row < last; ++row) {
    key.clear();
    list.AppendKey(row, key);
    const auto found = keys.find(key);
    if (found == keys.end()) continue;
    visit(row, found->second);
    ++found->second.count;
  }
}

// The rows at these places, which ascend.
std::vector<KnownRow> Remember(const ListView& list, const std::vector<std::size_t>& places) {
  std::vector<KnownRow> rows;
  rows.reserve(places.size());
  for (const std::size_t place : places) rows.push_back({list.Key(place), 0, list.Selection().Contains(place)});
  KeysMet keys = KeysOf(rows);
  WalkRows(list, places.empty() ? 0 : places.back() + 1, keys, [&](std::size_t row, const KeyMet& met) {
    const auto place = std::ranges::lower_bound(places, row);
    if (*place == row) rows[static_cast<std::size_t>(place - places.begin())].ordinal = met.count;
  });
  return rows;
}

// Where each of the rows is now, if anywhere.
std::vector<std::optional<std::size_t>> FindRows(const ListView& list, const std::vector<KnownRow>& rows) {
  std::vector<std::optional<std::size_t>> places(rows.size());
  KeysMet keys = KeysOf(rows);
  WalkRows(list, rows.empty() ? 0 : list.Count(), keys, [&](std::size_t row, KeyMet& met) {
    if (met.next < met.known.size() && rows[met.known[met.next]].ordinal == met.count)
      places[met.known[met.next++]] = row;
  });
  return places;
}

std::optional<std::size_t> IndexIn(const std::vector<std::size_t>& places, std::optional<std::size_t> place) {
  if (!place) return std::nullopt;
  return static_cast<std::size_t>(std::ranges::lower_bound(places, *place) - places.begin());
}

bool SameColumns(const ListView& list, const std::vector<widgets::ColumnHeader>& headers) {
  return std::ranges::equal(list.headers(), headers, {}, &widgets::ColumnHeader::caption,
                            &widgets::ColumnHeader::caption);
}

// The user had sorted by the column that carries an arrow.
void RestoreColumns(const ListStanding& standing, const Platform& platform, ListView& list) {
  if (!SameColumns(list, standing.headers)) return;
  list.InBatch([&] {
    for (std::size_t i = 0; i < standing.headers.size(); ++i) list.SetHeaderWidth(i, standing.headers[i].width);
  });
  const auto key = static_cast<std::size_t>(standing.sortKey);
  if (key >= standing.headers.size() || standing.headers[key].icon.empty()) return;
  util::SortListViewBy(platform, list, key + 1, standing.sortOrder);
}

void RestoreRows(const ListStanding& standing, ListView& list) {
  const auto places = FindRows(list, standing.rows);
  RowRanges selection;
  if (standing.allSelected) selection.Add({0, list.Count()});
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (standing.rows[i].selected && places[i]) selection.Add({*places[i], *places[i] + 1});
  }
  const auto placeOf = [&](std::optional<std::size_t> known) { return known ? places[*known] : std::nullopt; };
  const auto item = placeOf(standing.item);
  list.SetSelection(std::move(selection), item);
  if (list.Count() == 0) return;
  const auto top = std::ranges::find_if(standing.tops, [&](std::size_t known) { return places[known].has_value(); });
  list.ScrollTo({top == standing.tops.end() ? 0 : *places[*top], standing.left});
}

}  // namespace

std::vector<OpenNode> OpenNodesUnder(const widgets::TreeView& tree, NodeId parent) {
  std::vector<OpenNode> open;
  std::unordered_map<std::string_view, std::size_t> met;
  for (const NodeId node : tree.Children(parent)) {
    const std::size_t ordinal = met[tree.Key(node)]++;
    if (tree.IsExpanded(node)) open.push_back({std::string(tree.Key(node)), ordinal, OpenNodesUnder(tree, node)});
  }
  return open;
}

std::vector<FoundNode> FindNodes(const widgets::TreeView& tree, NodeId parent, const std::vector<OpenNode>& open) {
  std::vector<FoundNode> found;
  KeysMet keys = KeysOf(open);
  for (const NodeId node : tree.Children(parent)) {
    const auto at = keys.find(std::string(tree.Key(node)));
    if (at == keys.end()) continue;
    KeyMet& met = at->second;
    if (met.next < met.known.size() && open[met.known[met.next]].ordinal == met.count) {
      found.push_back({&open[met.known[met.next++]], node});
    }
    ++met.count;
  }
  return found;
}

std::vector<tree::Place> PlacesInSight(const widgets::TreeView& tree) {
  std::vector<tree::Place> places;
  for (NodeId node = tree.Top(); node != NodeId::kNone && places.size() < kInSight; node = tree.NextLine(node)) {
    places.push_back(tree::PlaceOf(tree, node));
  }
  return places;
}

ListStanding StandingIn(const ListView& list) {
  ListStanding standing{.headers = list.headers(), .sortKey = list.sortKey(), .sortOrder = list.sortOrder()};
  standing.allSelected = list.Count() > 1 && list.Selection().Count() == list.Count();
  std::vector<std::size_t> places;
  if (!standing.allSelected) {
    for (const widgets::RowRange& range : list.Selection().ranges()) {
      for (std::size_t row = range.first; row < range.last; ++row) places.push_back(row);
    }
  }
  const widgets::ListCorner corner = list.Corner();
  std::vector<std::size_t> tops;
  if (corner.row > 0) {
    for (std::size_t row = corner.row; row < list.Count() && tops.size() < kInSight; ++row) tops.push_back(row);
  }
  places.insert(places.end(), tops.begin(), tops.end());
  if (list.SelectedItem()) places.push_back(*list.SelectedItem());
  std::ranges::sort(places);
  places.erase(std::unique(places.begin(), places.end()), places.end());
  standing.rows = Remember(list, places);
  standing.item = IndexIn(places, list.SelectedItem());
  for (const std::size_t row : tops) standing.tops.push_back(*IndexIn(places, row));
  standing.left = corner.left;
  return standing;
}

void Restore(const ListStanding& standing, const Platform& platform, ListView& list) {
  RestoreColumns(standing, platform, list);
  RestoreRows(standing, list);
}

}  // namespace quorvel
