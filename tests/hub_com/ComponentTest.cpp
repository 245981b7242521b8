// clRecordHub itself, as its other clients see it: early bound, errors, types of values.
#include <gmock/gmock.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "datasource/ProcessLog.h"
#include "hub_com/ColumnReader.h"
#include "hub_com/ComInstallation.h"
#include "platform/windows/ComError.h"

namespace quorvel::test {

// The beginning of ILabels, as a compiler makes it of the type library. Not in the unnamed namespace, where the
// compiler would see that no class of this program fulfils it.
struct EarlyLabels : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE GetLabel(LONG connection, BSTR name, LONG* status) = 0;
  virtual HRESULT STDMETHODCALLTYPE NotifyStopRequest(LONG connection, BSTR server, LONG run, LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_strLabelValue(VARIANT* value) = 0;
};

namespace {

using testing::ElementsAre;
using windows::Bstr;
using windows::Variant;

class ComponentTest : public testing::TestWithParam<DWORD> {
 protected:
  ComInstallation at{hub_com::MakeSystemActivator(GetParam())};
};

// What an action raises: number and source, "" when it raises nothing.
std::string Raised(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return std::to_string(error.number()) + " " + error.source();
  }
  return "";
}

TEST_P(ComponentTest, AnswersThroughItsInterfaceToo) {
  const auto labels = at.Labels().As<EarlyLabels>(ComInstallation::kLabels);
  ASSERT_TRUE(labels);
  LONG status = -1;
  ASSERT_EQ(labels->GetLabel(at.Connection(), Bstr(std::string_view("UseType")).get(), &status), S_OK);
  EXPECT_EQ(status, 0);
  Variant value;
  ASSERT_EQ(labels->get_strLabelValue(value.Put()), S_OK);
  EXPECT_EQ(value.ToText(), "SERVEUR");
  const HRESULT failed = labels->NotifyStopRequest(-4, nullptr, 100, &status);
  EXPECT_EQ(failed, windows::ResultOf(5));
  if (GetParam() == CLSCTX_INPROC_SERVER) {
    EXPECT_EQ(Raised([&] { windows::RaiseResult(failed, ""); }), "5 clRecordHub");
  }
}

TEST_P(ComponentTest, ConnectionsAreOpenedAndClosedByClients) {
  EXPECT_EQ(Raised([&] { at.hub().OpenConnection("sqlite:no such file"); }), "53 clRecordHub");
  EXPECT_EQ(Raised([&] { at.hub().OpenConnection("other:"); }), "5 clRecordHub");
  EXPECT_EQ(Raised([&] { at.hub().CloseConnection(7); }), "5 clRecordHub");
  const auto source = at.Create<datasource::ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&] { source->GetProcessLogByProcess(at.Connection(), kDeploy, 0, 0, status); };
  EXPECT_EQ(Raised(ask), "");
  at.hub().CloseConnection(at.Connection());
  EXPECT_EQ(Raised(ask), "5 clRecordHub");
  EXPECT_EQ(source->lngCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Com, ComponentTest, testing::Values(CLSCTX_INPROC_SERVER, CLSCTX_LOCAL_SERVER));

// An array of these VARIANTs.
Variant ArrayOf(std::vector<Variant> values) {
  Variant made;
  made.raw().vt = VT_ARRAY | VT_VARIANT;
  made.raw().parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(values.size()));
  for (LONG row = 0; const Variant& value : values) {
    LONG place = row++;
    SafeArrayPutElement(made.raw().parray, &place, const_cast<VARIANT*>(&value.raw()));
  }
  return made;
}

template <class T>
Variant ArrayOf(VARTYPE type, const std::vector<T>& values) {
  Variant made;
  made.raw().vt = static_cast<VARTYPE>(VT_ARRAY | type);
  made.raw().parray = SafeArrayCreateVector(type, 0, static_cast<ULONG>(values.size()));
  std::memcpy(made.raw().parray->pvData, values.data(), values.size() * sizeof(T));
  return made;
}

template <class Column>
auto Read(const Variant& array, std::size_t rows) {
  Column column;
  hub_com::ReadColumn(array, rows, "column", column);
  return column;
}

TEST(ColumnReaderTest, TakesTheTypesThatComponentsUse) {
  using Numbers = datasource::Column<std::int32_t>;
  using Dates = datasource::Column<double>;
  using FlagColumn = datasource::Column<datasource::Flag>;
  const std::vector<std::int16_t> shorts{-1, 0, 7};
  EXPECT_THAT(Read<Numbers>(ArrayOf(VT_I2, shorts), 3).values(), ElementsAre(-1, 0, 7));
  EXPECT_THAT(Read<Numbers>(ArrayOf({Variant(70'000), Variant()}), 2).values(), ElementsAre(70'000, 0));
  EXPECT_THAT(Read<Dates>(ArrayOf<double>(VT_R8, {46346.5, 0}), 2).values(), ElementsAre(46346.5, 0));
  EXPECT_THAT(Read<Dates>(ArrayOf({Variant::Date(46346.5)}), 1).values(), ElementsAre(46346.5));
  EXPECT_THAT(Read<FlagColumn>(ArrayOf(VT_I2, shorts), 3).values(), ElementsAre(-1, 0, 7));
  EXPECT_THAT(Read<FlagColumn>(ArrayOf(VT_BOOL, shorts), 3).values(), ElementsAre(-1, 0, 7));
  EXPECT_THAT(Read<FlagColumn>(ArrayOf({Variant(true), Variant(false)}), 2).values(), ElementsAre(-1, 0));

  const auto half =
      Bstr(std::wstring_view(L"\xD800"
                             L"x"));
  const auto texts = Read<datasource::TextColumn>(
      ArrayOf({Variant(std::string_view("Été")), Variant(), Variant(half), Variant(half)}), 4);
  EXPECT_EQ(texts[0], "Été");
  EXPECT_EQ(texts[1], "");
  EXPECT_EQ(texts[2], "\xEF\xBF\xBDx");
  EXPECT_EQ(texts[3], texts[2]);
  EXPECT_EQ(Read<datasource::TextColumn>(ArrayOf<BSTR>(VT_BSTR, {nullptr, nullptr}), 2)[1], "") << "no text at all";
}

TEST(ColumnReaderTest, TakesPackedTextsWhosePlacesAreRight) {
  const auto read = [](std::vector<Variant> parts, std::size_t rows) {
    datasource::TextColumn column;
    hub_com::ReadPackedTexts(ArrayOf(std::move(parts)), rows, "column", column);
    std::string text;
    for (std::size_t row = 0; row < column.size(); ++row) text.append(column[row]).append("|");
    return text;
  };
  const Variant texts = ArrayOf({Variant(std::string_view("b")), Variant(std::string_view("Été"))});
  EXPECT_EQ(read({texts, ArrayOf<LONG>(VT_I4, {1, 0, 1})}, 3), "Été|b|Été|");
  EXPECT_EQ(read({texts, ArrayOf<LONG>(VT_I4, {})}, 0), "");
  EXPECT_EQ(Raised([&] { read({texts, ArrayOf<LONG>(VT_I4, {2})}, 1); }), "9 Quorvel");
  EXPECT_EQ(Raised([&] { read({texts, ArrayOf<LONG>(VT_I4, {-1})}, 1); }), "9 Quorvel");
  EXPECT_EQ(Raised([&] { read({texts, ArrayOf<LONG>(VT_I4, {0})}, 2); }), "9 Quorvel");
  EXPECT_EQ(Raised([&] { read({texts}, 1); }), "9 Quorvel");
  EXPECT_EQ(Raised([&] { read({Variant(1), ArrayOf<LONG>(VT_I4, {0})}, 1); }), "13 Quorvel");
}

}  // namespace
}  // namespace quorvel::test
