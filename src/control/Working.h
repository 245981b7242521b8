// That the control is at work.
#pragma once

namespace quorvel {

// Sets a flag as long as it lives.
class Working {
 public:
  explicit Working(bool& flag) : flag_(flag) { flag_ = true; }
  ~Working() { flag_ = false; }
  Working(const Working&) = delete;
  Working& operator=(const Working&) = delete;

 private:
  bool& flag_;
};

}  // namespace quorvel
