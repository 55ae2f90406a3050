// Message identifiers of the messaging centre and their file transport.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// The first four bytes of the identifier read as a big-endian unsigned
/// number ("dlbv" -> 0x646C6276); nullopt when shorter than four bytes.
std::optional<uint32_t> messageCode(std::string_view identifier);

/// The inverse: the four characters of the low 32 bits of a notify state;
/// "" when any of them is not printable ASCII.
std::string messageIdentifier(uint64_t state);

/// "/tmp/." + identifier, and "/tmp/." + identifier + "-reply". Absolute,
/// not moved under the jail root.
std::string requestFilePath(std::string_view identifier);
std::string replyFilePath(std::string_view identifier);

enum class MessageKind { OneWay, RequestReply };

struct MessageInfo {
  const char *identifier;
  MessageKind kind;
};

/// The eight messages, in table order.
inline constexpr MessageInfo kMessages[] = {
    {"dlbv", MessageKind::RequestReply}, {"idsn", MessageKind::RequestReply}, {"appL", MessageKind::RequestReply},
    {"fldr", MessageKind::RequestReply}, {"wfls", MessageKind::RequestReply}, {"gpsi", MessageKind::RequestReply},
    {"spsi", MessageKind::OneWay},       {"prrc", MessageKind::OneWay},
};

/// The table entry of an identifier; nullptr when it is not one of the eight.
const MessageInfo *findMessage(std::string_view identifier);

/// True for the six request/reply messages; false for one-way and unknown ones.
bool isRequestReply(std::string_view identifier);

}  // namespace tessarin
