#include "console/ReadingNotice.h"

#include <algorithm>
#include <iterator>

#include "qt/Guard.h"

namespace quorvel::console {
namespace {

constexpr int kShortRequest = 300;  // milliseconds, in which nobody begins to wonder

struct Reading {
  std::string_view query;
  const char* what;
};
constexpr Reading kReadings[] = {
    {"GetProcessLogs", "runs"},
    {"GetProcessLogByProcess", "runs of a process"},
    {"GetProcessLogByUser", "runs of stations"},
    {"GetProcessLogsByName", "runs of a process"},
    {"GetProcessLogByTask", "stations"},
    {"GetTaskRunsByProcessLog", "tasks"},
    {"GetStepLogByTaskRun", "steps"},
    {"GetCommunications", "connections"},
    {"GetCommunicationsByMonth", "connections"},
    {"GetCommandLogByCommunication", "commands"},
    {"GetCommandLogByStepLog", "commands"},
    {"GetAlarms", "alarms"},
    {"GetAlarmsByDay", "alarms"},
    {"GetSaves", "backups"},
    {"GetSaveFiles", "files of a backup"},
    {"GetUsersImports", "imports"},
    {"GetUsersImportByProcess", "imported users"},
    {"GetTaskSchedulerLogs", "the system log"},
};

}  // namespace

QString WordsFor(std::string_view query) {
  const auto* const found = std::ranges::find(kReadings, query, &Reading::query);
  return found == std::end(kReadings) ? QString() : QStringLiteral("Reading %1...").arg(QLatin1String(found->what));
}

ReadingNotice::ReadingNotice(QLabel& panel) : panel_(panel) {
  // Room for the longest text from the beginning: while a request goes on, nothing is laid out.
  int width = 0;
  for (const Reading& reading : kReadings) {
    width = std::max(width, panel_.fontMetrics().horizontalAdvance(WordsFor(reading.query)));
  }
  const QMargins margins = panel_.contentsMargins();
  panel_.setMinimumWidth(width + margins.left() + margins.right() + 2 * panel_.margin());
  end_.setSingleShot(true);
  end_.setInterval(0);
  qt::On(&end_, &QTimer::timeout, this, [this](auto&&...) { End(); });
}

void ReadingNotice::Begin() {
  if (since_.isValid()) return;
  since_.start();
  end_.start();
}

void ReadingNotice::Show(const hub::QueryProgress& progress) {
  Begin();
  if (!since_.hasExpired(kShortRequest)) return;
  const QString words = WordsFor(progress.query);
  if (words.isEmpty() || words == panel_.text()) return;
  panel_.setText(words);
  panel_.repaint();
}

void ReadingNotice::End() {
  since_.invalidate();
  panel_.clear();
}

}  // namespace quorvel::console
