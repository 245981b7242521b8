// OstranaAccount.dll: who the interactive user is, for programs that import this by name at run time.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <type_traits>

namespace {

struct HandleClose {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleClose>;

// Of the user for whom this thread works, where it does not work for the user of the program.
UniqueHandle TokenOfCaller() {
  HANDLE token = nullptr;
  constexpr BOOL kAsProgram = TRUE;  // reading the token is no right that the other user needs
  if (OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, kAsProgram, &token) == FALSE &&
      OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE) {
    return nullptr;
  }
  return UniqueHandle(token);
}

constexpr DWORD kLongest = 256;

// What the system answers of an account. It gives the lengths of names with or without the NUL, by its version.
struct Names {
  std::array<char, kLongest> user{};
  std::array<char, kLongest> domain{};
};

bool Find(Names& names) {
  struct alignas(TOKEN_USER) UserOfToken {
    std::array<unsigned char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> bytes;
  } found{};
  DWORD used = 0;
  const UniqueHandle token = TokenOfCaller();
  if (!token) return false;
  if (GetTokenInformation(token.get(), TokenUser, &found, sizeof(found), &used) == FALSE) return false;
  PSID const identity = reinterpret_cast<const TOKEN_USER*>(&found)->User.Sid;
  DWORD userLength = kLongest;
  DWORD domainLength = kLongest;
  SID_NAME_USE kind{};
  return LookupAccountSidA(nullptr, identity, names.user.data(), &userLength, names.domain.data(), &domainLength,
                           &kind) != FALSE;
}

// A name with its NUL into the caller's buffer; nothing is written when it does not fit.
bool Give(const char* name, char* buffer, DWORD& length) {
  const auto size = static_cast<DWORD>(std::strlen(name));
  const bool fits = size < length;
  if (fits) std::copy_n(name, size + 1, buffer);
  length = fits ? size : size + 1;
  return fits;
}

}  // namespace

// The names of the user and of the domain, or of the computer, that knows the user: in the ANSI code page, each ended
// by a NUL. The lengths are those of the buffers going in; coming out, those of the names without the NUL. Zero on
// failure; when a name does not fit its buffer, the buffer stays as it was, and its length is what the name takes.
extern "C" BOOL WINAPI GetCurrentUserAndDomain(char* user, DWORD* userLength, char* domain, DWORD* domainLength) {
  if (user == nullptr || userLength == nullptr || domain == nullptr || domainLength == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  Names names;
  if (!Find(names)) return FALSE;
  const bool userFits = Give(names.user.data(), user, *userLength);
  const bool domainFits = Give(names.domain.data(), domain, *domainLength);
  if (userFits && domainFits) return TRUE;
  SetLastError(ERROR_INSUFFICIENT_BUFFER);
  return FALSE;
}
