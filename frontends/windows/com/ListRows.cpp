#include "com/ListRows.h"

#include <string>
#include <utility>

#include "com/Answer.h"
#include "platform/windows/ComError.h"
#include "platform/windows/ComObject.h"
#include "platform/windows/ComValues.h"
#include "platform/windows/ErrorSupport.h"
#include "platform/windows/TypeDispatch.h"

namespace quorvel::windows {
namespace {

using widgets::ListView;

class ListItemObject final : public ComObject<Dispatched<IListItem>, ErrorSupport<IListItem>> {
 public:
  ListItemObject(std::shared_ptr<Viewer> viewer, std::size_t row)
      : viewer_(std::move(viewer)), row_(row), key_(List().Key(row)) {}

  STDMETHODIMP get_Index(LONG* value) noexcept override {
    return Answer([&] { *Given(value) = static_cast<LONG>(Item().Index()); });
  }
  STDMETHODIMP get_Key(BSTR* value) noexcept override {
    return AnswerText(value, [&] { return Item().Key(); });
  }
  STDMETHODIMP get_Text(BSTR* value) noexcept override {
    return AnswerText(value, [&] { return Item().Text(); });
  }
  STDMETHODIMP get_SubItems(LONG number, BSTR* value) noexcept override {
    return AnswerText(value, [&] {
      if (number < 1) throw Error(SystemError::kIndexOutOfRange, "The cells after the first one count from 1");
      return Item().SubItem(static_cast<std::size_t>(number));
    });
  }
  STDMETHODIMP get_SmallIcon(BSTR* value) noexcept override {
    return AnswerText(value, [&] { return Item().SmallIcon(); });
  }
  STDMETHODIMP get_Selected(VARIANT_BOOL* value) noexcept override {
    return Answer([&] { *Given(value) = ToVariantBool(Item().Selected()); });
  }

 private:
  template <class Body>
  static HRESULT Answer(Body&& body) noexcept {
    return Answering(__uuidof(IListItem), std::forward<Body>(body));
  }
  // The caller frees whatever stands there, after a failure too.
  template <class Body>
  static HRESULT AnswerText(BSTR* value, Body&& text) noexcept {
    return Answer([&] {
      *Given(value) = nullptr;
      *value = Bstr(text()).Detach();
    });
  }

  const ListView& List() const { return viewer_->control.controls().lvMotherList; }

  widgets::ListItem Item() {
    const bool stands = row_ < List().Count() && List().Key(row_) == key_;
    if (!stands) {
      const auto now = List().RowOfKey(key_);
      if (!now) throw Error(SystemError::kElementNotFound, "The list does not have this row any more");
      row_ = *now;
    }
    return {List(), row_};
  }

  std::shared_ptr<Viewer> viewer_;
  std::size_t row_;
  std::string key_;
};

// Hands the rows to scripts that walk over all of them. A list that gets shorter meanwhile ends the walk.
class RowWalk final : public ComObject<IEnumVARIANT> {
 public:
  RowWalk(std::shared_ptr<Viewer> viewer, std::size_t row) : viewer_(std::move(viewer)), row_(row) {}

  STDMETHODIMP Next(ULONG wanted, VARIANT* rows, ULONG* given) noexcept override {
    if (given != nullptr) *given = 0;
    if (rows == nullptr || (given == nullptr && wanted != 1)) return E_POINTER;
    return Answering(__uuidof(IEnumVARIANT), [&] {
      ULONG done = 0;
      for (; done < wanted && row_ < Count(); ++done, ++row_) {
        rows[done].pdispVal = MakeListItem(viewer_, row_).Detach();
        rows[done].vt = VT_DISPATCH;
        if (given != nullptr) ++*given;
      }
      return done == wanted ? S_OK : S_FALSE;
    });
  }
  STDMETHODIMP Skip(ULONG rows) noexcept override {
    const std::size_t left = row_ < Count() ? Count() - row_ : 0;
    row_ += rows < left ? rows : left;
    return rows <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() noexcept override {
    row_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(IEnumVARIANT** walk) noexcept override {
    if (walk == nullptr) return E_POINTER;
    *walk = nullptr;
    return Answering(__uuidof(IEnumVARIANT), [&] { *walk = MakeObject<RowWalk>(viewer_, row_).Detach(); });
  }

 private:
  std::size_t Count() const { return viewer_->control.controls().lvMotherList.Count(); }

  std::shared_ptr<Viewer> viewer_;
  std::size_t row_;
};

class ListItemsObject final : public ComObject<Dispatched<IListItems>, ErrorSupport<IListItems>> {
 public:
  explicit ListItemsObject(std::shared_ptr<Viewer> viewer) : viewer_(std::move(viewer)) {}

  STDMETHODIMP get_Count(LONG* value) noexcept override {
    return Answer([&] { *Given(value) = viewer_->control.p_ListCount(); });
  }
  STDMETHODIMP get_Item(VARIANT indexOrKey, IListItem** item) noexcept override {
    return Answer([&] {
      *Given(item) = nullptr;
      *item = MakeListItem(viewer_, RowNamed(viewer_->control.controls().lvMotherList, indexOrKey)).Detach();
    });
  }
  STDMETHODIMP get__NewEnum(IUnknown** rows) noexcept override {
    return Answer([&] {
      *Given(rows) = nullptr;
      *rows = MakeObject<RowWalk>(viewer_, std::size_t{0}).Detach();
    });
  }

 private:
  template <class Body>
  static HRESULT Answer(Body&& body) noexcept {
    return Answering(__uuidof(IListItems), std::forward<Body>(body));
  }

  std::shared_ptr<Viewer> viewer_;
};

}  // namespace

ComPtr<IListItems> MakeListItems(std::shared_ptr<Viewer> viewer) {
  return ComPtr<IListItems>::Adopt(new ListItemsObject(std::move(viewer)));
}

ComPtr<IListItem> MakeListItem(std::shared_ptr<Viewer> viewer, std::size_t row) {
  return ComPtr<IListItem>::Adopt(new ListItemObject(std::move(viewer), row));
}

std::size_t RowNamed(const ListView& list, VARIANT indexOrKey) {
  Variant value;
  Check(VariantCopyInd(&value.raw(), &indexOrKey), "A row cannot be named so");
  if (value.type() == VT_BSTR) return widgets::ListItems(list).Item(value.ToText()).Index() - 1;
  const std::int32_t index = value.ToInt32();
  return widgets::ListItems(list).Item(index < 0 ? 0 : static_cast<std::size_t>(index)).Index() - 1;
}

}  // namespace quorvel::windows
