#include "util/vb_error.h"

#include <new>
#include <utility>

namespace huebase {

VbError::VbError(int number) : VbError(number, describe(number)) {}

VbError::VbError(int number, std::string description)
    : std::runtime_error(description), number_(number), description_(std::move(description)) {}

std::string VbError::message() const {
    return "Error: " + std::to_string(number_) + ". " + description_;
}

std::string VbError::describe(int number) {
    switch (number) {
    case InvalidCall:
        return "Invalid procedure call or argument";
    case Overflow:
        return "Overflow";
    case OutOfMemory:
        return "Out of memory";
    case SubscriptOutOfRange:
        return "Subscript out of range";
    case DivisionByZero:
        return "Division by zero";
    case TypeMismatch:
        return "Type mismatch";
    case InternalError:
        return "Internal error";
    case BadFileNameOrNumber:
        return "Bad file name or number";
    case FileNotFound:
        return "File not found";
    case DeviceIoError:
        return "Device I/O error";
    case DiskFull:
        return "Disk full";
    case InputPastEndOfFile:
        return "Input past end of file";
    case PermissionDenied:
        return "Permission denied";
    case PathFileAccessError:
        return "Path/File access error";
    case PathNotFound:
        return "Path not found";
    case DuplicateKey:
        return "This key is already associated with an element of this collection";
    default:
        return "Application-defined or object-defined error";
    }
}

VbError VbError::from(std::exception_ptr failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const VbError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return VbError(OutOfMemory);
    } catch (...) {
        return VbError(InternalError);
    }
}

} // namespace huebase
