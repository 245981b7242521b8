// A host's subscription to the events of a viewer on one of its windows.
#pragma once

#include <QPointer>

#include "qt/ProcessLogWidget.h"

namespace quorvel::console {

// Ends with its owner, who hears the events; the viewer may go before it.
class Subscription {
 public:
  Subscription(qt::ProcessLogWidget& viewer, HostEvents& host) : viewer_(&viewer), host_(host) {
    viewer.control().Subscribe(host_);
  }
  ~Subscription() {
    if (viewer_) viewer_->control().Unsubscribe(host_);
  }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;

 private:
  QPointer<qt::ProcessLogWidget> viewer_;
  HostEvents& host_;
};

}  // namespace quorvel::console
