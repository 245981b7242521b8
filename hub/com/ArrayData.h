// Access to the values of a SAFEARRAY, which stays locked meanwhile.
#pragma once

#include <windows.h>

#include "platform/windows/ComError.h"

namespace quorvel::hub_com {

class ArrayData {
 public:
  // `array` must outlive it.
  explicit ArrayData(SAFEARRAY* array) : array_(array) {
    windows::Check(SafeArrayAccessData(array, &data_), "The values of an array cannot be read");
  }
  ~ArrayData() { SafeArrayUnaccessData(array_); }
  ArrayData(const ArrayData&) = delete;
  ArrayData& operator=(const ArrayData&) = delete;

  void* get() const { return data_; }

 private:
  SAFEARRAY* array_;
  void* data_ = nullptr;
};

}  // namespace quorvel::hub_com
