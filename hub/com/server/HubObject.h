// A COM object over a record source of the hub.
#pragma once

#include <oaidl.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>

#include "datasource/RecordSource.h"
#include "hub_com/server/SharedHub.h"
#include "platform/windows/ComError.h"
#include "platform/windows/ComServer.h"
#include "platform/windows/TypeDispatch.h"

namespace quorvel::hub_com {

class HubObject;

// What clients call: the methods of IUnknown and IDispatch, then those of the class in the order of its interface. They
// are plain functions whose first argument is the face, which is what a virtual method of C++ is to a caller too, so
// that a table of them can be made from the contract itself.
using Method = const void*;
struct Face {
  const Method* methods;
  HubObject* object;
};

// The methods of IUnknown and IDispatch.
inline constexpr std::size_t kDispatchMethods = 7;
extern const Method kDispatch[kDispatchMethods];

// Callers may come from several threads. Methods of the class run one at a time in the whole process.
class HubObject final : public ISupportErrorInfo {
 public:
  // Begins with one reference. Errors are those of the hub.
  HubObject(std::string_view classIdentifier, REFIID identity, const Method* methods);
  HubObject(const HubObject&) = delete;
  HubObject& operator=(const HubObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID wanted, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() noexcept override;
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID asked) noexcept override {
    return IsEqualGUID(asked, identity_) ? S_OK : S_FALSE;
  }

  Face* face() { return &face_; }
  windows::TypeDispatch& types() { return types_; }

  // The body of a method of the class: body(hub, source).
  template <class Source, class Body>
  HRESULT Answer(Body&& body) noexcept {
    return windows::Answering(identity_, [&] {
      const std::lock_guard lock(hub_->mutex());
      std::forward<Body>(body)(*hub_, static_cast<Source&>(*source_));
    });
  }

  // Whether the properties are those of one run, and no columns: after GetProcessLogDetail, up to the next query.
  bool showsDetail() const { return showsDetail_; }
  void SetShowsDetail(bool shows) { showsDetail_ = shows; }

 private:
  ~HubObject() = default;

  Face face_;
  IID identity_;
  std::atomic<ULONG> references_ = 1;
  windows::LibraryUse use_;
  windows::TypeDispatch types_;
  std::shared_ptr<SharedHub> hub_;
  std::unique_ptr<datasource::RecordSource> source_;
  bool showsDetail_ = false;
};

}  // namespace quorvel::hub_com
