#include "list/ChildList.h"

#include <optional>
#include <string>
#include <vector>

#include "widgets/TextArena.h"

namespace quorvel::list {
namespace {

class NodeRows : public widgets::RowSource {
 public:
  NodeRows(const widgets::TreeView& tree, widgets::NodeId parent) {
    const auto children = tree.Children(parent);
    rows_.reserve(children.size());
    for (const widgets::NodeId child : children) {
      rows_.push_back({texts_.Append(tree.Key(child)),
                       texts_.Append(tree.Text(child)),
                       texts_.Append(tree.Image(child)),
                       {tree.ForeColour(child), tree.IsBold(child)}});
    }
  }

  std::size_t Count() const override { return rows_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out.append(texts_.View(rows_[row].key)); }
  void AppendCell(std::size_t row, std::size_t /*column*/, std::string& out) const override {
    out.append(texts_.View(rows_[row].text));
  }
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t /*column*/) const override {
    return texts_.View(rows_[row].text);
  }
  std::string_view Icon(std::size_t row) const override { return texts_.View(rows_[row].icon); }
  widgets::RowLook Look(std::size_t row) const override { return rows_[row].look; }

 private:
  struct Row {
    widgets::TextArena::Ref key;
    widgets::TextArena::Ref text;
    widgets::TextArena::Ref icon;
    widgets::RowLook look;
  };
  widgets::TextArena texts_;
  std::vector<Row> rows_;
};

}  // namespace

Rows ChildRows(const widgets::TreeView& tree, widgets::NodeId node) {
  return std::make_shared<NodeRows>(tree, node);
}

Headers SubNodeHeaders(std::string_view caption, widgets::Twips listWidth) {
  constexpr widgets::Twips kMargin = 40;
  return {TextHeader(caption, listWidth / 2 - kMargin)};
}

}  // namespace quorvel::list
