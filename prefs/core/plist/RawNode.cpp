#include "core/plist/RawNode.hpp"

#include <cstring>

namespace tessarin::plist {

RawNode RawNode::makeScalar(Value v) {
  RawNode n;
  n.kind = Kind::Scalar;
  n.scalar = std::move(v);
  return n;
}

RawNode RawNode::makeUid(uint64_t uid) {
  RawNode n;
  n.kind = Kind::Uid;
  n.uid = uid;
  return n;
}

RawNode RawNode::makeArray(std::vector<RawNode> items) {
  RawNode n;
  n.kind = Kind::Array;
  n.items = std::move(items);
  return n;
}

RawNode RawNode::makeDictionary(std::vector<std::pair<std::string, RawNode>> entries) {
  RawNode n;
  n.kind = Kind::Dictionary;
  n.entries = std::move(entries);
  return n;
}

const RawNode *RawNode::find(const char *key) const noexcept {
  if (kind != Kind::Dictionary) return nullptr;
  for (const auto &e : entries)
    if (e.first == key) return &e.second;
  return nullptr;
}

std::optional<Value> toValue(RawNode &&node) {
  switch (node.kind) {
    case RawNode::Kind::Scalar:
      return std::move(node.scalar);
    case RawNode::Kind::Uid:
      return std::nullopt;
    case RawNode::Kind::Array: {
      Value::Array items;
      items.reserve(node.items.size());
      for (RawNode &child : node.items) {
        std::optional<Value> v = toValue(std::move(child));
        if (!v) return std::nullopt;
        items.push_back(std::move(*v));
      }
      return Value::array(std::move(items));
    }
    case RawNode::Kind::Dictionary: {
      Value::Dictionary entries;
      entries.reserve(node.entries.size());
      for (auto &e : node.entries) {
        std::optional<Value> v = toValue(std::move(e.second));
        if (!v) return std::nullopt;
        entries.emplace_back(std::move(e.first), std::move(*v));
      }
      return Value::dictionary(std::move(entries));
    }
  }
  return std::nullopt;
}

RawNode toRaw(const Value &value) {
  if (const Value::Array *a = value.asArray()) {
    std::vector<RawNode> items;
    items.reserve(a->size());
    for (const Value &v : *a) items.push_back(toRaw(v));
    return RawNode::makeArray(std::move(items));
  }
  if (const Value::Dictionary *d = value.asDictionary()) {
    std::vector<std::pair<std::string, RawNode>> entries;
    entries.reserve(d->size());
    for (const auto &e : *d) entries.emplace_back(e.first, toRaw(e.second));
    return RawNode::makeDictionary(std::move(entries));
  }
  return RawNode::makeScalar(value);
}

}  // namespace tessarin::plist
