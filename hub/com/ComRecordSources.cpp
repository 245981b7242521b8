#include "hub_com/ComRecordSources.h"

#include <algorithm>
#include <iterator>

#include "hub_com/Adapters.h"

namespace quorvel::hub_com {

std::unique_ptr<datasource::RecordSource> ComRecordSources::Create(std::string_view classIdentifier,
                                                                   std::string_view serverName) {
  const auto adapters = Adapters();
  const auto found = std::ranges::find(adapters, classIdentifier, &Adapter::classIdentifier);
  if (found == adapters.end()) {
    throw Error(SystemError::kCannotCreateComponent, "Class \"" + std::string(classIdentifier) +
                                                         "\" cannot be created on server \"" + std::string(serverName) +
                                                         "\": it is no class of the contract");
  }
  std::shared_ptr<MemberNumbers>& numbers = numbers_[{std::string(classIdentifier), std::string(serverName)}];
  if (numbers == nullptr) numbers = std::make_shared<MemberNumbers>();
  return found->create(SourceLink(activator_, classIdentifier, serverName, numbers));
}

}  // namespace quorvel::hub_com
