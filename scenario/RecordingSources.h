// Record sources that pass every call on and keep a journal of them.
#pragma once

#include <memory>
#include <string_view>

#include "datasource/RecordSource.h"
#include "scenario/CallRecorder.h"

namespace quorvel::scenario {

// Creates what another factory creates, wrapped. Both arguments outlive this factory, the recorder its sources too.
class RecordingFactory : public datasource::RecordSourceFactory {
 public:
  RecordingFactory(datasource::RecordSourceFactory& inner, CallRecorder& calls) : inner_(inner), calls_(calls) {}

  // An object of a class that is none of the contract's comes unwrapped.
  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier,
                                                   std::string_view serverName) override;

 private:
  datasource::RecordSourceFactory& inner_;
  CallRecorder& calls_;
};

}  // namespace quorvel::scenario
