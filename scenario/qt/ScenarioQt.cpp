#include "scenario_qt/ScenarioQt.h"

#include <QLabel>
#include <QStatusBar>

#include "qt/Convert.h"
#include "qt/QtPlatform.h"
#include "scenario_qt/QtViewer.h"

namespace quorvel::scenario {

std::unique_ptr<ViewerPort> ScenarioQt::PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) {
  placedLast_ = makeViewer_(platform, factory);
  return std::make_unique<QtViewer>(*placedLast_);
}

void ScenarioQt::SetStatusText(std::string_view text) {
  if (placedLast_ != nullptr) qt::QtPlatform(*placedLast_).SetHostStatusText(text);
}

std::string ScenarioQt::StatusText() const {
  if (placedLast_ == nullptr) return {};
  const auto* const bar = placedLast_->window()->findChild<QStatusBar*>(QStringLiteral("stStatusBar"));
  if (bar == nullptr) return {};
  const auto* const panel = bar->findChild<QLabel*>();
  return qt::FromQt(panel != nullptr ? panel->text() : bar->currentMessage());
}

}  // namespace quorvel::scenario
