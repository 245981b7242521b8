// The classes that clRecordHub.dll offers.
#pragma once

#include "platform/windows/ComServer.h"

namespace quorvel::hub_com {

const windows::ComLibrary& Library();

}  // namespace quorvel::hub_com
