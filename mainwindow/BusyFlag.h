#pragma once

namespace mindloft {

/// Sets a flag for its lifetime and puts the former value back.
class BusyFlag {
 public:
  explicit BusyFlag(bool& flag) : flag_(flag), former_(flag) { flag_ = true; }
  ~BusyFlag() { flag_ = former_; }
  BusyFlag(const BusyFlag&) = delete;
  BusyFlag& operator=(const BusyFlag&) = delete;

 private:
  bool& flag_;
  bool former_;
};

}  // namespace mindloft
