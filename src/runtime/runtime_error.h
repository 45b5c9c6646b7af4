/// A failure as a value with a number: thrown where it happens, caught in one place, at the event boundary.
#pragma once

#include <stdexcept>
#include <string>

namespace terravane {

/// The platform's run-time errors that the program raises by itself.
namespace error {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kInternal = 51;
inline constexpr int kFileNotFound = 53;
inline constexpr int kDeviceError = 57;
inline constexpr int kDiskFull = 61;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathFileAccess = 75;
inline constexpr int kPathNotFound = 76;
inline constexpr int kInvalidUseOfNull = 94;
inline constexpr int kObjectRequired = 424;
inline constexpr int kInvalidPicture = 481;
inline constexpr int kPrinter = 482;
inline constexpr int kDialogCancelled = 32755;
}  // namespace error

/// number       the platform's number; engine failures carry the engine's (negative) ones
/// description  one English sentence for the person at the machine; it names the file, field or value concerned
class RuntimeError : public std::runtime_error {
  public:
    /// With the platform's own description of the number, "Division by zero" for 11.
    explicit RuntimeError(int number);
    RuntimeError(int number, const std::string& description);

    int Number() const noexcept { return number_; }
    std::string Description() const { return what(); }

  private:
    int number_;
};

}  // namespace terravane
