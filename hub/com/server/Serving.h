// Offers the classes of a library to other processes.
#pragma once

#include "platform/windows/ComServer.h"

namespace quorvel::hub_com {

// Returns when no object was alive and no lock was held for some seconds, so that clients that create an object for
// each call find the same process again. 0, or 1 when the classes cannot be offered.
int Serve(const windows::ComLibrary& library) noexcept;

}  // namespace quorvel::hub_com
