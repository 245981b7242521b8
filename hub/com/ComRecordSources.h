// Record sources that are COM objects of a data-access component.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "datasource/RecordSource.h"
#include "hub_com/ComActivator.h"
#include "hub_com/SourceLink.h"

namespace quorvel::hub_com {

// Creates the classes of the contract on the named server and calls them by name, on the thread that made them, where
// COM must have been started. docs/record-sources.md says what a component must be.
//
// A call that meets the end of the component's process raises what the system says of it (0x800706BA and its like); the
// source is good for further calls, which then make a new object.
class ComRecordSources : public datasource::RecordSourceFactory {
 public:
  explicit ComRecordSources(std::shared_ptr<ComActivator> activator = MakeSystemActivator())
      : activator_(std::move(activator)) {}

  // Sources may outlive this factory.
  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier,
                                                   std::string_view serverName) override;

 private:
  std::shared_ptr<ComActivator> activator_;
  // Of each class on each server.
  std::map<std::pair<std::string, std::string>, std::shared_ptr<MemberNumbers>> numbers_;
};

}  // namespace quorvel::hub_com
