// The seam behind which record sources are created: what stands behind it decides which machine and process they are
// in.
#pragma once

#include <oaidl.h>

#include <memory>
#include <string_view>

#include "platform/windows/ComPtr.h"

namespace quorvel::hub_com {

class ComActivator {
 public:
  virtual ~ComActivator() = default;

  // A new object of the class ("clRecordHub.ProcessLog") on the named server ("" = this machine), which must have the
  // interface `identity`. What the system said when that cannot be; E_NOINTERFACE when it is the interface that the
  // object lacks. `object` is then left empty.
  virtual HRESULT Create(std::string_view classIdentifier, std::string_view serverName, REFIID identity,
                         windows::ComPtr<IDispatch>& object) = 0;
};

// Asks the system. On this machine the class is looked for in `localContext`, a combination of CLSCTX.
std::shared_ptr<ComActivator> MakeSystemActivator(DWORD localContext = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER);

}  // namespace quorvel::hub_com
