#pragma once
// A failure that the routines leave to their caller, with the run-time error number and text a
// user of the system would be shown ("File not found", 53).

#include <stdexcept>
#include <string>

namespace orvanta {

inline constexpr int kErrorNumberSubscriptOutOfRange = 9;
inline constexpr int kErrorNumberFileNotFound = 53;
inline constexpr int kErrorNumberPathFileAccess = 75;
inline constexpr int kErrorNumberPathNotFound = 76;

class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }
    std::string description() const { return what(); }

private:
    int number_;
};

}  // namespace orvanta
