#include "console_core/FirstView.h"

#include "control/Routing.h"

namespace quorvel::console {
namespace {

void BuildForHost(ucProcessLog& control) {
  if (control.p_FromType() != tlFromType::tlAllImports) return control.m_GetLogByAlarms();
  std::int32_t view = 0;
  std::int32_t import = control.p_IdAppLog();
  std::int32_t passed = 0;
  control.m_GetLogByImports(view, import, passed);
}

}  // namespace

void BuildFirstView(ucProcessLog& control) {
  switch (ViewOfTab(control.p_FromType(), control.controls().sstProcessLog.currentCaption())) {
    case View::kNone:
      return BuildForHost(control);
    case View::kUsers:
      return control.m_GetLogByUser();
    case View::kConnections:
      return control.m_GetLogByCommunication();
    case View::kAlarms:
      return control.m_GetLogByAlarms();
    case View::kBackups:
      return control.m_GetLogByBackup();
    default:
      return control.m_GetLogByProcess();
  }
}

}  // namespace quorvel::console
