// Runs the tests of a program for Windows.
#include <gmock/gmock.h>
#include <windows.h>

namespace {

// Where a debugger is set up, a crash may end with the exit code of success.
constexpr UINT kCrashed = 99;

LONG WINAPI EndCrashed(EXCEPTION_POINTERS* /*what*/) {
  TerminateProcess(GetCurrentProcess(), kCrashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int main(int argc, char** argv) {
  SetUnhandledExceptionFilter(EndCrashed);
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
