// A scenario on Qt: input goes to the widgets, and what is printed is read back from them.
#pragma once

#include <QPointer>
#include <functional>

#include "qt/ProcessLogWidget.h"
#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

class ScenarioQt : public ScenarioPort {
 public:
  // Puts a viewer on a form that is on the screen. The form owns it; it goes earlier when the script closes it.
  using MakeViewer = std::function<qt::ProcessLogWidget*(Platform&, datasource::RecordSourceFactory&)>;

  explicit ScenarioQt(MakeViewer makeViewer) : makeViewer_(std::move(makeViewer)) {}

  std::unique_ptr<ViewerPort> PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) override;

  // In the window of the viewer that was placed last. Error 438 when it has no stStatusBar.
  void SetStatusText(std::string_view text) override;
  std::string StatusText() const override;

 private:
  MakeViewer makeViewer_;
  QPointer<qt::ProcessLogWidget> placedLast_;
};

}  // namespace quorvel::scenario
