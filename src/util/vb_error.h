#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace huebase {

// A run-time error with the classic number and description, as shown to the
// user: "Error: 9. Subscript out of range".
class VbError : public std::runtime_error {
public:
    // The classic numbers used by the program.
    enum Number : int {
        InvalidCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        InternalError = 51,
        BadFileNameOrNumber = 52,
        FileNotFound = 53,
        DeviceIoError = 57,
        DiskFull = 61,
        InputPastEndOfFile = 62,
        PermissionDenied = 70,
        PathFileAccessError = 75,
        PathNotFound = 76,
        DuplicateKey = 457,
    };

    explicit VbError(int number);
    VbError(int number, std::string description);

    int number() const noexcept { return number_; }
    const std::string& description() const noexcept { return description_; }
    // "Error: N. description"
    std::string message() const;

    // The standard description of a number ("Application-defined or
    // object-defined error" for numbers without one).
    static std::string describe(int number);

    // The error an exception stands for: a VbError as it is, memory
    // exhaustion as error 7 and anything else as error 51, "Internal error",
    // so every failure reaches the user in the same form.
    static VbError from(std::exception_ptr failure);

private:
    int number_;
    std::string description_;
};

} // namespace huebase
