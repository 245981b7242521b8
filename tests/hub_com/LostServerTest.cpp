// A component whose process ends while it is in use.
#include <gmock/gmock.h>
#include <objbase.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "datasource/ProcessLog.h"
#include "hub_com/ComRecordSources.h"
#include "hub_com/RegisteredHub.h"
#include "platform/windows/ComError.h"
#include "platform/windows/ComValues.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using datasource::ProcessLog;
using testing::HasSubstr;
using windows::ComPtr;

constexpr IID kIdentity = {0x9D6DA27D, 0x866A, 0x4B34, {0x9D, 0xEA, 0x36, 0x71, 0x40, 0xA3, 0x11, 0x38}};
constexpr const wchar_t* kSettings = L"Software\\Ostrana\\clRecordHub";
constexpr std::int32_t kConnection = 7;

ComPtr<IStream> NewStream() {
  ComPtr<IStream> stream;
  windows::Check(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), "stream");
  return stream;
}

// A reference to an object as bytes that another process can read.
std::string Marshaled(IDispatch* object) {
  const ComPtr<IStream> stream = NewStream();
  windows::Check(CoMarshalInterface(stream.get(), IID_IDispatch, object, MSHCTX_LOCAL, nullptr, MSHLFLAGS_NORMAL), "");
  STATSTG size{};
  stream->Stat(&size, STATFLAG_NONAME);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  std::string bytes(size.cbSize.LowPart, '\0');
  stream->Read(bytes.data(), size.cbSize.LowPart, nullptr);
  return bytes;
}

ComPtr<IDispatch> Unmarshaled(const std::string& bytes) {
  const ComPtr<IStream> stream = NewStream();
  stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  ComPtr<IDispatch> object;
  windows::Check(CoUnmarshalInterface(stream.get(), IID_IDispatch, object.PutVoid()), "reference");
  return object;
}

// What the other process does: it holds an object until it is ended.
TEST(ServerProcess, DISABLED_HoldsAnObject) {
  const fs::path reference = _wgetenv(kReferenceVariable);
  ComPtr<IDispatch> object;
  windows::Check(
      hub_com::MakeSystemActivator(CLSCTX_INPROC_SERVER)->Create(ProcessLog::kClassIdentifier, "", kIdentity, object),
      "object");
  const fs::path unfinished = reference.parent_path() / "unfinished";
  std::ofstream(unfinished, std::ios::binary) << Marshaled(object.get());
  fs::rename(unfinished, reference);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) DispatchMessageW(&message);
}

// The other process. It is ended, at the latest, with this object.
class ServerProcess {
 public:
  explicit ServerProcess(const fs::path& reference) {
    SetEnvironmentVariableW(kReferenceVariable, reference.c_str());
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    std::wstring command =
        L"\"" + program + L"\" --gtest_also_run_disabled_tests --gtest_filter=ServerProcess.DISABLED_HoldsAnObject";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process_)) {
      throw std::runtime_error("The other process cannot be started");
    }
    constexpr DWORD kLook = 20;
    for (DWORD waited = 0; !fs::exists(reference) && waited < 20'000; waited += kLook) {
      if (WaitForSingleObject(process_.hProcess, kLook) == WAIT_OBJECT_0) break;
    }
  }
  ~ServerProcess() {
    End();
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

  void End() {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, INFINITE);
  }

 private:
  PROCESS_INFORMATION process_{};
};

// Gives an object that is there already, then new ones.
class FirstOfAnotherProcess final : public hub_com::ComActivator {
 public:
  explicit FirstOfAnotherProcess(ComPtr<IDispatch> first) : first_(std::move(first)) {}
  HRESULT Create(std::string_view classIdentifier, std::string_view serverName, REFIID identity,
                 ComPtr<IDispatch>& object) override {
    object = std::exchange(first_, {});
    return object ? S_OK : inner_->Create(classIdentifier, serverName, identity, object);
  }

 private:
  ComPtr<IDispatch> first_;
  std::shared_ptr<ComActivator> inner_ = hub_com::MakeSystemActivator(CLSCTX_INPROC_SERVER);
};

// A connection that both processes have by their settings.
class SetConnection {
 public:
  explicit SetConnection(std::string_view url) {
    const windows::Bstr text(url);
    RegSetKeyValueW(HKEY_CURRENT_USER, kSettings, L"Connection7", REG_SZ, text.get(),
                    SysStringByteLen(text.get()) + sizeof(wchar_t));
  }
  ~SetConnection() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kSettings, L"Connection7"); }
  SetConnection(const SetConnection&) = delete;
  SetConnection& operator=(const SetConnection&) = delete;
};

TEST(LostServerTest, OneQueryFailsAndTheNextOneAsksANewObject) {
  const SmallHistory history;
  const SetConnection connection(history.url());
  const fs::path reference = history.file().parent_path() / "reference";
  ServerProcess server(reference);
  std::ifstream file(reference, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  hub_com::ComRecordSources sources(std::make_shared<FirstOfAnotherProcess>(Unmarshaled(bytes)));
  const auto source = datasource::CreateRecordSource<ProcessLog>(sources, "");
  std::int32_t status = -1;
  const auto ask = [&] {
    source->GetProcessLogByProcess(kConnection, kDeploy, 0, 0, status);
    return source->lngCount();
  };
  EXPECT_EQ(ask(), 3);
  server.End();
  try {
    ask();
    ADD_FAILURE() << "nothing was raised";
  } catch (const Error& error) {
    EXPECT_LT(error.number(), 0) << "the system's own number";
    EXPECT_THAT(error.description(), HasSubstr("clRecordHub.ProcessLog.GetProcessLogByProcess"));
  }
  EXPECT_EQ(source->lngCount(), 0);
  EXPECT_EQ(ask(), 3);
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace quorvel::test
