#include "datasource/ErrorsProcess.h"

#include <string>

#include "datasource/ErrorLog.h"

namespace quorvel::datasource {
namespace {

constexpr std::string_view kTitle = "Error - Vendrix Ostrana";
constexpr std::string_view kConcurrentUpdateText =
    "Update impossible at this moment because another user is modifying the same data.\r\nPlease try again later.";
constexpr std::string_view kErrorType = "E";

std::string& HelpFile() {
  static thread_local std::string path;
  return path;
}

std::string Chain(std::string_view label, std::string_view source) {
  std::string chain(label);
  chain.append(kLineEnd).append("\t").append(source);
  return chain;
}

std::string MessageText(std::int32_t number, std::string_view label, std::string_view source,
                        std::string_view description) {
  std::string text = "- Source: ";
  text.append(kLineEnd).append("\t").append(Chain(label, source)).append(kLineEnd).append(kLineEnd);
  text.append("- Number: ").append(std::to_string(number)).append(kLineEnd).append(kLineEnd);
  return text.append("- Description: ").append(description);
}

}  // namespace

void PropagateError(std::string_view label) {
  const Error error = CurrentError();
  throw Error(error.number(), Chain(label, error.source()), error.description(),
              error.helpFile().empty() ? HelpFile() : error.helpFile(), error.helpContext());
}

void SetHelpFile(std::string_view path) {
  HelpFile() = path;
}

void ErrorsProcess::ProcessError(std::int32_t number, std::string_view label, std::string_view description) noexcept {
  try {
    if (number == kAlreadyReported) return;
    if (number == kConcurrentUpdate) {
      platform_->ShowMessage(kConcurrentUpdateText, kTitle);
      return;
    }
    const std::string source = CurrentError().source();
    WriteErrorLog(*platform_, number, Chain(label, source), description, kErrorType, "");
    platform_->ShowMessage(MessageText(number, label, source, description), kTitle);
  } catch (...) {  // NOLINT(bugprone-empty-catch): an error while reporting an error has nobody to go to
  }
}

void ErrorsProcess::ProcessCurrentError(std::string_view label) noexcept {
  try {
    const Error error = CurrentError();
    ProcessError(error.number(), label, error.description());
  } catch (...) {  // NOLINT(bugprone-empty-catch): as above
  }
}

void ErrorsProcess::LogCurrentError(std::string_view label) noexcept {
  try {
    const Error error = CurrentError();
    if (error.number() == kAlreadyReported || error.number() == kConcurrentUpdate) return;
    WriteErrorLog(*platform_, error.number(), Chain(label, error.source()), error.description(), kErrorType, "");
  } catch (...) {  // NOLINT(bugprone-empty-catch): as above
  }
}

}  // namespace quorvel::datasource
