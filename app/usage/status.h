#pragma once

namespace orlin::status {

// Exit statuses of the command.
inline constexpr int Done = 0;
inline constexpr int NotConfirmed = 1;
inline constexpr int NoSense = 2;  ///< the call makes no sense, or its output cannot be written
inline constexpr int Failed = 3;
inline constexpr int Refused = 4;

}  // namespace orlin::status
