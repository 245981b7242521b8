#include "windows/Ear.h"

#include <unordered_map>
#include <utility>

#include "windows/Guard.h"

namespace quorvel::windows {

// One ear. One that has ended while it was hearing still leads to the older ones.
struct Ear::Link {
  Hear hear;
  std::shared_ptr<Link> older;
  std::shared_ptr<Chain> chain;  // null once the control has ended
};

// The ears of one control.
class Ear::Chain {
 public:
  // That of the window, which gets one where it has none.
  static std::shared_ptr<Chain> Of(HWND window) {
    std::shared_ptr<Chain>& chain = Chains()[window];
    if (chain != nullptr) return chain;
    chain = std::make_shared<Chain>(window);
    chain->own_ =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    return chain;
  }

  explicit Chain(HWND window) : window_(window) {}

  void Add(const std::shared_ptr<Link>& link) { link->older = std::exchange(newest_, link); }

  void Remove(const std::shared_ptr<Link>& link) {
    for (std::shared_ptr<Link>* at = &newest_; *at != nullptr; at = &(*at)->older) {
      if (*at != link) continue;
      *at = link->older;
      break;
    }
    // Where somebody else listens since, who would hand on to nobody, the window goes on without ears.
    const bool last = GetWindowLongPtrW(window_, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(Procedure);
    if (newest_ == nullptr && last) Leave();
  }

  LRESULT Tell(const std::shared_ptr<Link>& from, UINT message, WPARAM wParam, LPARAM lParam) const {
    for (std::shared_ptr<Link> link = from; link != nullptr; link = link->older) {
      const auto handled = GuardedOr(std::optional<LRESULT>(), [&] { return link->hear(message, wParam, lParam); });
      if (handled) return *handled;
    }
    return CallWindowProcW(own_, window_, message, wParam, lParam);
  }

 private:
  // Of the windows of this thread. Native controls have uses of their own for their user data.
  static std::unordered_map<HWND, std::shared_ptr<Chain>>& Chains() {
    thread_local std::unordered_map<HWND, std::shared_ptr<Chain>> chains;
    return chains;
  }

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = Chains().find(window);
    if (found == Chains().end()) return DefWindowProcW(window, message, wParam, lParam);
    const std::shared_ptr<Chain> chain = found->second;  // what is heard may end the last ear
    if (message == WM_NCDESTROY) return chain->End(wParam, lParam);
    return chain->Tell(chain->newest_, message, wParam, lParam);
  }

  LRESULT End(WPARAM wParam, LPARAM lParam) {
    for (std::shared_ptr<Link> link = std::exchange(newest_, nullptr); link != nullptr; link = link->older) {
      link->chain = nullptr;
    }
    Leave();
    return CallWindowProcW(own_, window_, WM_NCDESTROY, wParam, lParam);
  }

  void Leave() {
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own_));
    Chains().erase(window_);
  }

  HWND window_;
  WNDPROC own_ = nullptr;
  std::shared_ptr<Link> newest_;
};

Ear::Ear(HWND window, Hear hear) : link_(std::make_shared<Link>()) {
  link_->hear = std::move(hear);
  link_->chain = Chain::Of(window);
  link_->chain->Add(link_);
}

Ear::~Ear() {
  if (const std::shared_ptr<Chain> chain = std::exchange(link_->chain, nullptr)) chain->Remove(link_);
}

LRESULT Ear::Pass(UINT message, WPARAM wParam, LPARAM lParam) const {
  const std::shared_ptr<Chain> chain = link_->chain;
  return chain == nullptr ? 0 : chain->Tell(link_->older, message, wParam, lParam);
}

}  // namespace quorvel::windows
