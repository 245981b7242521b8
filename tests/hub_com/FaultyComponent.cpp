#include "hub_com/FaultyComponent.h"

#include <utility>

#include "platform/windows/ComObject.h"
#include "platform/windows/WideText.h"

namespace quorvel::test {
namespace {

using windows::ComPtr;

class FaultyObject final : public windows::ComObject<IDispatch> {
 public:
  FaultyObject(ComPtr<IDispatch> inner, Faults& faults, std::string_view classIdentifier)
      : inner_(std::move(inner)), faults_(faults), names_(faults.names[std::string(classIdentifier)]) {}

  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return inner_->GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) noexcept override {
    return inner_->GetTypeInfo(number, locale, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                             DISPID* numbers) noexcept override {
    const std::string name = windows::FromWide(names[0]);
    ++faults_.asked[name];
    if (name == "PackedTexts") return DISP_E_UNKNOWNNAME;
    const HRESULT result = inner_->GetIDsOfNames(reserved, names, count, locale, numbers);
    if (SUCCEEDED(result)) names_[numbers[0]] = name;
    return result;
  }
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrongArgument) noexcept override {
    const auto fault = faults_.instead.find(names_[member]);
    if (fault != faults_.instead.end()) return fault->second(result, exception);
    return inner_->Invoke(member, reserved, locale, flags, arguments, result, exception, wrongArgument);
  }

 private:
  ComPtr<IDispatch> inner_;
  Faults& faults_;
  std::map<DISPID, std::string>& names_;
};

class FaultyActivator final : public hub_com::ComActivator {
 public:
  FaultyActivator(std::shared_ptr<hub_com::ComActivator> inner, Faults& faults)
      : inner_(std::move(inner)), faults_(faults) {}

  HRESULT Create(std::string_view classIdentifier, std::string_view serverName, REFIID identity,
                 ComPtr<IDispatch>& object) override {
    faults_.created.push_back(std::string(classIdentifier) + " on " + std::string(serverName));
    if (FAILED(faults_.creation)) return faults_.creation;
    ComPtr<IDispatch> inner;
    // Whatever the server is called, the objects are in this process.
    const HRESULT result = inner_->Create(classIdentifier, "", identity, inner);
    if (SUCCEEDED(result))
      object = ComPtr<IDispatch>::Adopt(new FaultyObject(std::move(inner), faults_, classIdentifier));
    return result;
  }

 private:
  std::shared_ptr<hub_com::ComActivator> inner_;
  Faults& faults_;
};

}  // namespace

std::shared_ptr<hub_com::ComActivator> MakeFaultyActivator(std::shared_ptr<hub_com::ComActivator> inner,
                                                           Faults& faults) {
  return std::make_shared<FaultyActivator>(std::move(inner), faults);
}

}  // namespace quorvel::test
