// The one exception of this library: a run-time error with the five values that hosts know.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace quorvel {

// Numbers of system errors that this library raises itself or turns other exceptions into.
enum class SystemError : std::int32_t {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kIndexOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kDeviceInput = 57,
  kFileExists = 58,
  kFileNotFound = 53,
  kPermissionDenied = 70,
  kPathAccess = 75,
  kUnsupportedMember = 438,
  kCannotCreateComponent = 429,
  kActionUnsupported = 445,
  kElementNotFound = 35601,
};

// The base of numbers that components raise themselves: "object error" plus 512. Number = kComponentErrorBase + n.
inline constexpr std::int64_t kComponentErrorBase = 0x80040200;

// The signed 32-bit number of component error n, n from 1.
constexpr std::int32_t ComponentError(std::int32_t n) {
  return static_cast<std::int32_t>(kComponentErrorBase + n);
}

// Object error + 516: an error that was already reported; nobody shows or logs it again.
inline constexpr std::int32_t kAlreadyReported = ComponentError(4);
// Object error + 525: a write that met another writer of the same data.
inline constexpr std::int32_t kConcurrentUpdate = ComponentError(13);

class Error : public std::exception {
 public:
  Error(std::int32_t number, std::string source, std::string description, std::string helpFile = {},
        std::int32_t helpContext = 0);
  Error(SystemError number, std::string description);

  // `what()` is the description.
  const char* what() const noexcept override { return description_.c_str(); }

  std::int32_t number() const { return number_; }
  // Who raised it, then, in front, a label for each procedure that passed it on (see ErrorsProcess).
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  const std::string& helpFile() const { return helpFile_; }
  std::int32_t helpContext() const { return helpContext_; }

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
  std::string helpFile_;
  std::int32_t helpContext_;
};

// The exception being handled, as an Error: itself when it is one; otherwise 7 for std::bad_alloc and
// std::length_error, 9 for std::out_of_range, 6 for std::overflow_error and std::range_error, 13 for std::bad_cast,
// std::bad_variant_access and std::bad_optional_access, 53 for a std::system_error that misses a file, 5 for anything
// else, with the original text as description. Outside a handler: number 0, all texts empty.
Error CurrentError();

}  // namespace quorvel
