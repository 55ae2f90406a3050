// Waiting for SpringBoard's reply file: a busy read loop with a time budget.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/FunctionRef.hpp"

namespace tessarin {

using Bytes = std::vector<std::uint8_t>;

/// How long a request waits for its reply, in seconds.
inline constexpr double kReplyBudgetSeconds = 0.7;
/// Replies larger than this are not read into memory; they read as empty data.
inline constexpr std::size_t kMaxReplyBytes = 16u << 20;

/// The whole file, or nothing when it cannot be opened. A file above kMaxReplyBytes
/// gives empty bytes (present, but never a valid reply).
std::optional<Bytes> readReplyFile(const std::string &path);

/// Calls `read` without pausing until it gives data or more than `budgetSeconds`
/// have passed since the first call (by `now`, in seconds); when the loop ends
/// without data, reads once more.
std::optional<Bytes> awaitReply(FunctionRef<std::optional<Bytes>()> read, FunctionRef<double()> now,
                                double budgetSeconds);

}  // namespace tessarin
