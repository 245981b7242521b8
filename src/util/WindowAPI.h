// Which operating system this is, and who works at it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Platform.h"

namespace quorvel::util {

struct OSInfos {
  std::int32_t code = 0;
  std::string name;
};

// The code of an operating system: of its family alone (100 Win32s, 200 Windows 9x, 500 Windows NT), then without a
// name, or of the version, with its name as a report of support has it. 0 and no name for a system that is not known;
// versions of the NT family behind 6 are not.
OSInfos OSInfosOf(const SystemVersion& version, bool familyOnly);

// The code of the running system. Off Windows there is no version record: the family is 500, the version 0. Errors are
// those of the platform, here and below.
std::int32_t GetOSInfos(const Platform& platform, bool familyOnly);

// Whether the running system is of the NT family, in whatever version. True off Windows.
bool IsOsNT(const Platform& platform);

// The interactive user: "DOMAIN\user" on the NT family and "host\user" off Windows. Empty when the system does not say,
// which on Windows it never does without the account library. On the older family the user's name alone, with a NUL
// character as the last of the text: who keeps it cuts that.
std::string VBGetUserNameEx(const Platform& platform);

}  // namespace quorvel::util
