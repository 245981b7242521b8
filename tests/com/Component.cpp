#include "com/Component.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

namespace quorvel::test {
namespace {

// COM for all tests, and the look whether one of them kept a reference.
class ComponentEnvironment : public testing::Environment {
 public:
  void SetUp() override { ASSERT_HRESULT_SUCCEEDED(OleInitialize(nullptr)); }
  void TearDown() override {
    EXPECT_EQ(AskLibrary("DllCanUnloadNow"), S_OK) << "an object was never released";
    OleUninitialize();
  }
};

[[maybe_unused]] const auto* const kEnvironment = testing::AddGlobalTestEnvironment(new ComponentEnvironment);

void* Exported(const char* function) {
  void* const found = reinterpret_cast<void*>(GetProcAddress(Library(), function));
  if (found == nullptr) throw std::runtime_error(std::string(function) + " is not exported");
  return found;
}

}  // namespace

HMODULE Library() {
  static HMODULE const library = LoadLibraryW(L"Quorvel.dll");
  if (library == nullptr) throw std::runtime_error("Quorvel.dll cannot be loaded");
  return library;
}

HRESULT AskLibrary(const char* function) {
  return reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(Exported(function))();
}

ComPtr<_ucProcessLog> NewControl() {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(Exported("DllGetClassObject"));
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(getClassObject(__uuidof(::ucProcessLog), IID_IClassFactory, factory.PutVoid()), S_OK);
  ComPtr<_ucProcessLog> control;
  EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(_ucProcessLog), control.PutVoid()), S_OK);
  return control;
}

ManifestHolds::ManifestHolds() {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const std::wstring manifest = (std::filesystem::path(program).parent_path() / L"Quorvel.X.manifest").wstring();
  ACTCTXW described{};
  described.cbSize = sizeof(described);
  described.lpSource = manifest.c_str();
  context_ = CreateActCtxW(&described);
  EXPECT_NE(context_, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
}

ManifestHolds::~ManifestHolds() {
  DeactivateActCtx(0, cookie_);
  ReleaseActCtx(context_);
}

LeftError TakeLeftError() {
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Put()) != S_OK) return {};
  Bstr source;
  Bstr description;
  info->GetSource(source.Put());
  info->GetDescription(description.Put());
  return {source.Text(), description.Text()};
}

LONG Open(_ucProcessLog& control, const std::string& url) {
  LONG connect = 0;
  EXPECT_EQ(control.OpenHistory(Bstr(url).get(), &connect), S_OK) << TakeLeftError().description;
  EXPECT_EQ(control.put_p_Connect(connect), S_OK);
  return connect;
}

Called CallByName(IDispatch& object, const wchar_t* name, std::vector<Variant> arguments, WORD how) {
  Called called;
  auto* text = const_cast<wchar_t*>(name);
  DISPID member = 0;
  called.result = object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &member);
  if (FAILED(called.result)) return called;
  std::vector<VARIANT> reversed;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    reversed.push_back(argument->raw());
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS given{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  if (how == DISPATCH_PROPERTYPUT) {
    given.rgdispidNamedArgs = &put;
    given.cNamedArgs = 1;
  }
  EXCEPINFO exception{};
  called.result =
      object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, how, &given, called.value.Put(), &exception, nullptr);
  Bstr texts[3];
  *texts[0].Put() = exception.bstrSource;
  *texts[1].Put() = exception.bstrDescription;
  *texts[2].Put() = exception.bstrHelpFile;
  called.description = texts[1].Text();
  if (called.result == DISP_E_EXCEPTION) called.result = exception.scode;
  return called;
}

std::vector<std::string> RootKeys(_ucProcessLog& control) {
  Variant none(false);
  none.raw().vt = VT_ERROR;
  none.raw().scode = DISP_E_PARAMNOTFOUND;
  Variant keys;
  EXPECT_EQ(control.NodeKeys(none.raw(), keys.Put()), S_OK);
  std::vector<std::string> texts;
  VARIANT* values = nullptr;
  SafeArrayAccessData(keys.raw().parray, reinterpret_cast<void**>(&values));
  for (ULONG i = 0; i < keys.raw().parray->rgsabound[0].cElements; ++i) {
    texts.push_back(windows::TextOf(values[i].bstrVal));
  }
  SafeArrayUnaccessData(keys.raw().parray);
  return texts;
}

}  // namespace quorvel::test
