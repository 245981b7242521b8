#include "scenario/Session.h"

#include <filesystem>
#include <utility>

#include "hub/sqlite/Database.h"
#include "scenario/Script.h"

namespace quorvel::scenario {
namespace {

// Pixels of a new viewer, so that prints do not depend on the form that it is on.
constexpr int kWidth = 900;
constexpr int kHeight = 600;

// The file of a URL that was opened.
std::filesystem::path FileOf(std::string_view url) {
  url.remove_prefix(url.find(':') + 1);
  url = url.substr(0, url.find('?'));
  return std::u8string(url.begin(), url.end());
}

}  // namespace

void Session::Open(std::string_view url) {
  connection_ = calls_.AddConnection(component_->OpenConnection(url));
  url_ = url;
  const auto present = viewers_.find(present_);
  if (present != viewers_.end()) present->second->viewer().p_Connect(connection_);
}

void Session::Execute(std::string_view sql) {
  if (url_.empty()) throw ScriptError("No history is open");
  hub::Database(FileOf(url_), hub::Access::kReadWrite).Execute(sql);
}

ViewerPort& Session::viewer() {
  if (present_ == kNone) throw ScriptError("The viewer was closed");
  std::unique_ptr<ViewerPort>& present = viewers_[present_];
  if (present == nullptr) {
    present = port_.PlaceViewer(platform_, factory_);
    present->Resize(kWidth, kHeight);
    present->viewer().p_Connect(connection_);
    present->viewer().Subscribe(events_);
  }
  return *present;
}

void Session::ChooseViewer(std::int32_t number) {
  if (number < 1) throw ScriptError("Viewers are numbered from 1");
  present_ = number;
  gripHeld_ = false;
  viewer();
}

void Session::EndViewer() {
  viewer();
  viewers_.erase(std::exchange(present_, kNone));
}

}  // namespace quorvel::scenario
