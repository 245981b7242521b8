// The control with all that it needs.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "com/HistoryFactory.h"
#include "control/ucProcessLog.h"
#include "datasource/RecordSource.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::windows {

// Knows when others run: while a message is open, or the host's status bar is written, the host may do anything.
class HostedPlatform final : public WindowsPlatform {
 public:
  void ShowMessage(std::string_view text, std::string_view title) override {
    const Outside outside(calls_);
    WindowsPlatform::ShowMessage(text, title);
  }
  void SetHostStatusText(std::string_view text) override {
    const Outside outside(calls_);
    WindowsPlatform::SetHostStatusText(text);
  }
  // Counts a call into the host as long as it lives.
  class Outside {
   public:
    explicit Outside(int& calls) : calls_(calls) { ++calls_; }
    ~Outside() { --calls_; }
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

   private:
    int& calls_;
  };
  int& calls() { return calls_; }

 private:
  int calls_ = 0;
};

// Makes sources for the control's connection.
class SourcesOfControl final : public datasource::RecordSourceFactory {
 public:
  // Both must outlive it; the control may be made later.
  SourcesOfControl(HistoryFactory& factory, const ucProcessLog& control) : factory_(factory), control_(control) {}

  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier,
                                                   std::string_view serverName) override {
    return factory_.Create(control_.p_Connect(), classIdentifier, serverName);
  }

 private:
  HistoryFactory& factory_;
  const ucProcessLog& control_;
};

// Shared by the object that a host holds and by the rows that it handed out, which may outlive it.
struct Viewer {
  std::shared_ptr<HistoryFactory> factory = MakeFactory();
  HostedPlatform platform;
  SourcesOfControl sources{*factory, control};
  ucProcessLog control{platform, sources};

  // Whether code of the control is being run further up: neither it nor what draws it may go then.
  bool Busy() { return platform.calls() > 0 || control.AtWork(); }
};

}  // namespace quorvel::windows
