#include "platform/Error.h"

#include <new>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <typeinfo>
#include <utility>
#include <variant>

namespace quorvel {

Error::Error(std::int32_t number, std::string source, std::string description, std::string helpFile,
             std::int32_t helpContext)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      helpFile_(std::move(helpFile)),
      helpContext_(helpContext) {}

Error::Error(SystemError number, std::string description)
    : Error(static_cast<std::int32_t>(number), "Quorvel", std::move(description)) {}

Error CurrentError() {
  const std::exception_ptr current = std::current_exception();
  if (!current) return {0, {}, {}};
  try {
    std::rethrow_exception(current);
  } catch (const Error& error) {
    return error;
  } catch (const std::bad_alloc& error) {
    return {SystemError::kOutOfMemory, error.what()};
  } catch (const std::length_error& error) {
    return {SystemError::kOutOfMemory, error.what()};
  } catch (const std::out_of_range& error) {
    return {SystemError::kIndexOutOfRange, error.what()};
  } catch (const std::overflow_error& error) {
    return {SystemError::kOverflow, error.what()};
  } catch (const std::range_error& error) {
    return {SystemError::kOverflow, error.what()};
  } catch (const std::bad_cast& error) {
    return {SystemError::kTypeMismatch, error.what()};
  } catch (const std::bad_variant_access& error) {
    return {SystemError::kTypeMismatch, error.what()};
  } catch (const std::bad_optional_access& error) {
    return {SystemError::kTypeMismatch, error.what()};
  } catch (const std::system_error& error) {
    const bool missing = error.code() == std::errc::no_such_file_or_directory;
    return {missing ? SystemError::kFileNotFound : SystemError::kInvalidCall, error.what()};
  } catch (const std::exception& error) {
    return {SystemError::kInvalidCall, error.what()};
  } catch (...) {
    return {SystemError::kInvalidCall, "Unknown exception"};
  }
}

}  // namespace quorvel
