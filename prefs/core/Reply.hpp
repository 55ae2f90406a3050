// What a reply file from SpringBoard holds: a keyed archive of property-list objects.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin {

/// The reply that a reply file's bytes hold, or nothing, which the transport treats as
/// no reply at all. Only property-list classes can come out (plist/KeyedArchive.hpp
/// lists what the decoder refuses), so a reply never makes the bridge build an object
/// of another class. Empty bytes, what readReplyFile gives for an oversized file, are
/// no reply. The time is O(n log n) in the size of the file: replies are decoded on
/// Settings' main thread, within the request's budget.
std::optional<plist::Value> decodeReply(const std::vector<std::uint8_t> &bytes);

}  // namespace tessarin
