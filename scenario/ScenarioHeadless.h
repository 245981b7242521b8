// A scenario without a front end: gestures go straight to the viewer, and its models are what a user would see.
#pragma once

#include <string>
#include <string_view>

#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

class ScenarioHeadless : public ScenarioPort {
 public:
  std::unique_ptr<ViewerPort> PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) override;
  void SetStatusText(std::string_view text) override { statusText_ = text; }
  std::string StatusText() const override { return statusText_; }

 private:
  std::string statusText_;
};

}  // namespace quorvel::scenario
