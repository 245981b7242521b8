// What a host keeps of the control between its runs.
#include <gtest/gtest.h>

#include "com/StrictHost.h"

namespace quorvel::test {
namespace {

ComPtr<IStream> NewStream() {
  ComPtr<IStream> stream;
  EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
  return stream;
}

void Rewind(IStream& stream) {
  EXPECT_EQ(stream.Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
}

class PersistenceTest : public testing::Test {
 protected:
  PersistenceTest() {
    SIZEL extent{8000, 4000};
    EXPECT_EQ(placed.object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_EQ(placed.control->put_p_FromType(tlOneAlarm), S_OK);
    EXPECT_EQ(placed.control->put_p_ProcessId(-7), S_OK);
    EXPECT_EQ(placed.control->put_p_IdAppLog(12), S_OK);
    EXPECT_EQ(placed.control->put_p_Key(Bstr(L"LPROC|Größe").get()), S_OK);
  }

  static void ExpectKept(const ComPtr<_ucProcessLog>& control) {
    ::tlFromType fromType{};
    LONG processId = 0;
    LONG idAppLog = 0;
    Bstr key;
    SIZEL extent{};
    EXPECT_EQ(control->get_p_FromType(&fromType), S_OK);
    EXPECT_EQ(control->get_p_ProcessId(&processId), S_OK);
    EXPECT_EQ(control->get_p_IdAppLog(&idAppLog), S_OK);
    EXPECT_EQ(control->get_p_Key(key.Put()), S_OK);
    EXPECT_EQ(control.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_EQ(fromType, tlOneAlarm);
    EXPECT_EQ(processId, -7);
    EXPECT_EQ(idAppLog, 12);
    EXPECT_EQ(key.View(), L"LPROC|Größe");
    EXPECT_EQ(extent.cx, 8000);
    EXPECT_EQ(extent.cy, 4000);
  }

  PlacedControl placed;
};

TEST_F(PersistenceTest, ComesBackFromAStream) {
  const auto kept = placed.control.As<IPersistStreamInit>();
  EXPECT_EQ(kept->IsDirty(), S_OK);
  const auto stream = NewStream();
  ASSERT_EQ(kept->Save(stream.get(), TRUE), S_OK);
  EXPECT_EQ(kept->IsDirty(), S_FALSE);
  ULARGE_INTEGER most{};
  ULARGE_INTEGER used{};
  EXPECT_EQ(kept->GetSizeMax(&most), S_OK);
  EXPECT_EQ(stream->Seek({}, STREAM_SEEK_CUR, &used), S_OK);
  EXPECT_LE(used.QuadPart, most.QuadPart);

  const auto another = NewControl();
  Rewind(*stream.get());
  ASSERT_EQ(another.As<IPersistStreamInit>()->Load(stream.get()), S_OK);
  ExpectKept(another);
  EXPECT_EQ(another.As<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_F(PersistenceTest, ComesBackFromAPropertyBag) {
  ASSERT_EQ(placed.control.As<IPersistPropertyBag>()->Save(placed.host.get(), FALSE, TRUE), S_OK);
  const auto another = NewControl();
  ASSERT_EQ(another.As<IPersistPropertyBag>()->Load(placed.host.get(), nullptr), S_OK);
  ExpectKept(another);

  placed.host->kept = {{L"p_ProcessId", Variant(std::string_view("none"))}};
  EXPECT_EQ(another.As<IPersistPropertyBag>()->Load(placed.host.get(), nullptr), ErrorOf(13));
  ExpectKept(another);
  placed.host->kept.clear();
  EXPECT_EQ(another.As<IPersistPropertyBag>()->Load(placed.host.get(), nullptr), S_OK);
  ExpectKept(another);
}

TEST_F(PersistenceTest, AStreamThatIsDamagedChangesNothing) {
  const auto kept = placed.control.As<IPersistStreamInit>();
  const auto whole = NewStream();
  ASSERT_EQ(kept->Save(whole.get(), FALSE), S_OK);
  ULARGE_INTEGER size{};
  whole->Seek({}, STREAM_SEEK_CUR, &size);
  for (ULONGLONG length = 0; length < size.QuadPart; ++length) {
    const auto cut = NewStream();
    Rewind(*whole.get());
    whole->CopyTo(cut.get(), {.QuadPart = length}, nullptr, nullptr);
    Rewind(*cut.get());
    EXPECT_EQ(kept->Load(cut.get()), STG_E_READFAULT) << length << " bytes";
  }
  const auto foreign = NewStream();
  const char text[] = "something else, long enough to be read as if it were";
  foreign->Write(text, sizeof(text), nullptr);
  Rewind(*foreign.get());
  EXPECT_EQ(kept->Load(foreign.get()), STG_E_INVALIDHEADER);
  EXPECT_EQ(TakeLeftError().description, "This was not kept by the viewer");
  ExpectKept(placed.control);
}

TEST_F(PersistenceTest, AHostIsAskedToSaveWhatChanged) {
  placed.host->Calls();
  EXPECT_EQ(placed.object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
  EXPECT_EQ(placed.host->Calls(), "SaveObject");
  EXPECT_EQ(placed.control.As<IPersistStreamInit>()->Save(NewStream().get(), TRUE), S_OK);
  EXPECT_EQ(placed.object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
  EXPECT_EQ(placed.host->Calls(), "");
}

}  // namespace
}  // namespace quorvel::test
