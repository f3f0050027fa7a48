#pragma once
// The exit status of the headless build, one for each way it can end.

namespace orvanta::exitcode {

inline constexpr int kBuilt = 0;
inline constexpr int kBuildStopped = 1;
inline constexpr int kUsage = 2;
inline constexpr int kNotFound = 3;
// A failed check N of the "Package it!" button ends with kCheckFailed + N.
inline constexpr int kCheckFailed = 10;

}  // namespace orvanta::exitcode
