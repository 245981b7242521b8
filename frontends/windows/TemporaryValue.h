// A variable that has another value for a while.
#pragma once

#include <utility>

namespace quorvel::windows {

// Gives the variable back what it was, when it goes.
template <class Value>
class TemporaryValue {
 public:
  TemporaryValue(Value& variable, Value value) : variable_(variable), before_(std::exchange(variable, value)) {}
  ~TemporaryValue() { variable_ = before_; }
  TemporaryValue(const TemporaryValue&) = delete;
  TemporaryValue& operator=(const TemporaryValue&) = delete;

 private:
  Value& variable_;
  Value before_;
};

}  // namespace quorvel::windows
