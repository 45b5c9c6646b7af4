#include "runtime/runtime_error.h"

#include <algorithm>
#include <array>

namespace terravane {
namespace {

struct KnownError {
    int number;
    const char* description;
};

constexpr std::array kKnownErrors{
    KnownError{error::kInvalidProcedureCall, "Invalid procedure call or argument"},
    KnownError{error::kOverflow, "Overflow"},
    KnownError{error::kOutOfMemory, "Out of memory"},
    KnownError{error::kSubscriptOutOfRange, "Subscript out of range"},
    KnownError{error::kDivisionByZero, "Division by zero"},
    KnownError{error::kTypeMismatch, "Type mismatch"},
    KnownError{error::kFileNotFound, "File not found"},
    KnownError{error::kDeviceError, "Device I/O error"},
    KnownError{error::kDiskFull, "Disk full"},
    KnownError{error::kPermissionDenied, "Permission denied"},
    KnownError{error::kPathFileAccess, "Path/File access error"},
    KnownError{error::kPathNotFound, "Path not found"},
    KnownError{error::kInvalidUseOfNull, "Invalid use of Null"},
    KnownError{error::kObjectRequired, "Object required"},
    KnownError{error::kInvalidPicture, "Invalid picture"},
    KnownError{error::kPrinter, "Printer error"},
    KnownError{error::kDialogCancelled, "Cancel was selected."},
};

const char* DescriptionOf(int number)
{
    const auto known = std::ranges::find(kKnownErrors, number, &KnownError::number);
    return known != kKnownErrors.end() ? known->description : "Application-defined or object-defined error";
}

}  // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, DescriptionOf(number)) {}

RuntimeError::RuntimeError(int number, const std::string& description)
    : std::runtime_error(description), number_(number)
{}

}  // namespace terravane
