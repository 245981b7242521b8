// What a host keeps of the control: in a stream of its own form, or as named properties.
#include <olectl.h>

#include <array>
#include <cstring>
#include <string>

#include "com/ControlObject.h"
#include "platform/windows/ComValues.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

// The stream: this mark, the numbers, the length of the key in bytes, the key as UTF-8; numbers with 32 bits.
constexpr std::int32_t kMark = 0x314C5051;  // "QPL1"
constexpr std::int32_t kMostKeyBytes = 64 * 1024;

struct Numbers {
  std::int32_t mark;
  std::int32_t width;
  std::int32_t height;
  std::int32_t fromType;
  std::int32_t processId;
  std::int32_t idAppLog;
  std::int32_t keyBytes;
};

constexpr const wchar_t* kWidth = L"_ExtentX";
constexpr const wchar_t* kHeight = L"_ExtentY";
constexpr const wchar_t* kFromType = L"p_FromType";
constexpr const wchar_t* kProcessId = L"p_ProcessId";
constexpr const wchar_t* kIdAppLog = L"p_IdAppLog";
constexpr const wchar_t* kKey = L"p_Key";

void ReadAll(IStream& stream, void* bytes, std::size_t count) {
  ULONG read = 0;
  Check(stream.Read(bytes, static_cast<ULONG>(count), &read), "What was kept of the viewer cannot be read");
  if (read != count) throw Error(STG_E_READFAULT, "Quorvel", "What was kept of the viewer is cut off");
}

void WriteAll(IStream& stream, const void* bytes, std::size_t count) {
  ULONG written = 0;
  Check(stream.Write(bytes, static_cast<ULONG>(count), &written), "What to keep of the viewer cannot be written");
  if (written != count) throw Error(STG_E_MEDIUMFULL, "Quorvel", "There is no room to keep the viewer");
}

// A property that the bag does not have keeps its value.
void ReadNumber(IPropertyBag& bag, IErrorLog* log, const wchar_t* name, std::int32_t& number) {
  Variant value;
  if (SUCCEEDED(bag.Read(name, value.Put(), log))) number = value.ToInt32();
}

void ReadExtent(IPropertyBag& bag, IErrorLog* log, const wchar_t* name, LONG& length) {
  auto number = static_cast<std::int32_t>(length);
  ReadNumber(bag, log, name, number);
  length = number;
}

void Write(IPropertyBag& bag, const wchar_t* name, Variant value) {
  Check(bag.Write(name, &value.raw()), "What to keep of the viewer cannot be written");
}

}  // namespace

ControlObject::Kept ControlObject::ToKeep() {
  const ucProcessLog& c = control();
  return {extent_, static_cast<std::int32_t>(c.p_FromType()), c.p_ProcessId(), c.p_IdAppLog(), c.p_Key()};
}

void ControlObject::TakeOver(const Kept& kept) {
  ucProcessLog& c = control();
  c.p_FromType(static_cast<quorvel::tlFromType>(kept.fromType));
  c.p_ProcessId(kept.processId);
  c.p_IdAppLog(kept.idAppLog);
  c.p_Key(kept.key);
  if (kept.extent.cx > 0 && kept.extent.cy > 0) extent_ = kept.extent;
  LayOutForExtent();
  changed_ = false;
}

HRESULT ControlObject::GetClassID(CLSID* identifier) noexcept {
  if (identifier == nullptr) return E_POINTER;
  *identifier = __uuidof(::ucProcessLog);
  return S_OK;
}

HRESULT ControlObject::InitNew() noexcept {
  return S_OK;
}

HRESULT ControlObject::IsDirty() noexcept {
  return changed_ ? S_OK : S_FALSE;
}

HRESULT ControlObject::Load(IStream* stream) noexcept {
  if (stream == nullptr) return E_POINTER;
  return Answering(__uuidof(IPersistStreamInit), [&] {
    Numbers numbers{};
    ReadAll(*stream, &numbers, sizeof(numbers));
    if (numbers.mark != kMark || numbers.keyBytes < 0 || numbers.keyBytes > kMostKeyBytes) {
      throw Error(STG_E_INVALIDHEADER, "Quorvel", "This was not kept by the viewer");
    }
    std::string key(static_cast<std::size_t>(numbers.keyBytes), '\0');
    ReadAll(*stream, key.data(), key.size());
    TakeOver({{numbers.width, numbers.height}, numbers.fromType, numbers.processId, numbers.idAppLog, std::move(key)});
  });
}

HRESULT ControlObject::Save(IStream* stream, BOOL clearDirty) noexcept {
  if (stream == nullptr) return E_POINTER;
  return Answering(__uuidof(IPersistStreamInit), [&] {
    const Kept kept = ToKeep();
    if (kept.key.size() > kMostKeyBytes) throw Error(SystemError::kOverflow, "The key is too long to be kept");
    const Numbers numbers{kMark,
                          static_cast<std::int32_t>(kept.extent.cx),
                          static_cast<std::int32_t>(kept.extent.cy),
                          kept.fromType,
                          kept.processId,
                          kept.idAppLog,
                          static_cast<std::int32_t>(kept.key.size())};
    WriteAll(*stream, &numbers, sizeof(numbers));
    WriteAll(*stream, kept.key.data(), kept.key.size());
    if (clearDirty != FALSE) changed_ = false;
  });
}

HRESULT ControlObject::GetSizeMax(ULARGE_INTEGER* size) noexcept {
  if (size == nullptr) return E_POINTER;
  size->QuadPart = sizeof(Numbers) + control().p_Key().size();
  return S_OK;
}

HRESULT ControlObject::Load(IPropertyBag* bag, IErrorLog* log) noexcept {
  if (bag == nullptr) return E_POINTER;
  return Answering(__uuidof(IPersistPropertyBag), [&] {
    Kept kept = ToKeep();
    ReadExtent(*bag, log, kWidth, kept.extent.cx);
    ReadExtent(*bag, log, kHeight, kept.extent.cy);
    ReadNumber(*bag, log, kFromType, kept.fromType);
    ReadNumber(*bag, log, kProcessId, kept.processId);
    ReadNumber(*bag, log, kIdAppLog, kept.idAppLog);
    Variant key;
    if (SUCCEEDED(bag->Read(kKey, key.Put(), log))) kept.key = key.ToText();
    TakeOver(kept);
  });
}

HRESULT ControlObject::Save(IPropertyBag* bag, BOOL clearDirty, BOOL /*allProperties*/) noexcept {
  if (bag == nullptr) return E_POINTER;
  return Answering(__uuidof(IPersistPropertyBag), [&] {
    const Kept kept = ToKeep();
    Write(*bag, kWidth, Variant(static_cast<std::int32_t>(kept.extent.cx)));
    Write(*bag, kHeight, Variant(static_cast<std::int32_t>(kept.extent.cy)));
    Write(*bag, kFromType, Variant(kept.fromType));
    Write(*bag, kProcessId, Variant(kept.processId));
    Write(*bag, kIdAppLog, Variant(kept.idAppLog));
    Write(*bag, kKey, Variant(std::string_view(kept.key)));
    if (clearDirty != FALSE) changed_ = false;
  });
}

}  // namespace quorvel::windows
