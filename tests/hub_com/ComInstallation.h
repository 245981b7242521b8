// The small history, read through COM.
#pragma once

#include <memory>
#include <utility>

#include "hub/QueryCases.h"
#include "hub_com/ComHub.h"
#include "platform/windows/ComError.h"
#include "support/SmallHistory.h"

namespace quorvel::test {

class ComInstallation final : public Installation {
 public:
  explicit ComInstallation(std::shared_ptr<hub_com::ComActivator> activator)
      : activator_(activator), hub_(std::move(activator)) {}

  datasource::RecordSourceFactory& Factory() override { return hub_; }
  std::int32_t Connection() const override { return connection_; }
  hub_com::ComHub& hub() { return hub_; }

  static constexpr IID kLabels = {0x582DF88C, 0x0D62, 0x4BBF, {0x92, 0xBA, 0xB4, 0xB6, 0x07, 0x3B, 0x13, 0x19}};
  // An object of the component itself.
  windows::ComPtr<IDispatch> Labels() const {
    windows::ComPtr<IDispatch> labels;
    windows::Check(activator_->Create("clRecordHub.Labels", "", kLabels, labels), "clRecordHub.Labels");
    return labels;
  }

 private:
  SmallHistory history_;
  std::shared_ptr<hub_com::ComActivator> activator_;
  hub_com::ComHub hub_;
  std::int32_t connection_ = hub_.OpenConnection(history_.url());
};

}  // namespace quorvel::test
