#include "core/plist/KeyedArchive.hpp"

#include <array>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/plist/RawNode.hpp"

namespace tessarin::plist {
namespace {

constexpr int64_t kArchiveVersion = 100000;

const std::string *scalarString(const RawNode *n) {
  if (!n || !n->isScalar()) return nullptr;
  return n->scalar.asString();
}

enum class ArchivedClass { Dictionary, Array, String, Data, Date, Unsupported };

ArchivedClass classify(std::string_view name) {
  if (name == "NSDictionary" || name == "NSMutableDictionary") return ArchivedClass::Dictionary;
  if (name == "NSArray" || name == "NSMutableArray") return ArchivedClass::Array;
  if (name == "NSString" || name == "NSMutableString") return ArchivedClass::String;
  if (name == "NSData" || name == "NSMutableData") return ArchivedClass::Data;
  if (name == "NSDate") return ArchivedClass::Date;
  return ArchivedClass::Unsupported;
}

// The entries the decoder reads from an archived object.
enum Field { kClass, kClassName, kKeys, kObjects, kString, kData, kBytes, kTime, kFieldCount };
constexpr const char *kFieldNames[kFieldCount] = {"$class",    "$classname", "NS.keys",  "NS.objects",
                                                  "NS.string", "NS.data",    "NS.bytes", "NS.time"};
using Fields = std::array<const RawNode *, kFieldCount>;

// Objects with up to this many entries are searched; larger ones are indexed.
constexpr size_t kScanLimit = 16;

// Resolves UIDs against "$objects". Only property-list classes come out;
// a reference to an object that is being decoded (a cycle), to "$null", or
// out of range fails the whole archive. The node budget also bounds
// archives that reference shared objects many times over.
class Decoder {
 public:
  explicit Decoder(const std::vector<RawNode> &objects) : objects_(objects), onPath_(objects.size(), 0) {}

  bool decodeReference(const RawNode &ref, size_t depth, Value &out) {
    if (!ref.isUid()) return false;
    return decodeObject(ref.uid, depth, out);
  }

 private:
  bool decodeObject(uint64_t uid, size_t depth, Value &out) {
    if (uid == 0 || uid >= objects_.size() || depth > kMaxDepth) return false;
    if (onPath_[uid] || ++nodes_ > kMaxNodes) return false;
    const RawNode &object = objects_[uid];
    if (object.isScalar()) {
      if (!addPayload(object.scalar)) return false;
      out = object.scalar;
      return true;
    }
    if (!object.isDictionary()) return false;
    onPath_[uid] = 1;
    const bool ok = decodeInstance(object, depth, out);
    onPath_[uid] = 0;
    return ok;
  }

  bool addPayload(const Value &v) {
    const size_t n = v.isString() || v.isData() ? v.size() : 0;
    if (n > kMaxPayloadBytes - payload_) return false;
    payload_ += n;
    return true;
  }

  /// The first entry named `f` in an object, as RawNode::find gives it; nullptr when
  /// there is none or the object is not a dictionary. An object (a class above all) may
  /// be referenced at every node the budget allows and may carry any number of entries
  /// besides, so a large one is indexed on first use instead of searched at each
  /// reference, which would cost the product of the two.
  const RawNode *field(const RawNode &object, Field f) {
    if (!object.isDictionary()) return nullptr;
    if (object.entries.size() <= kScanLimit) return object.find(kFieldNames[f]);
    auto it = indexed_.find(&object);
    if (it == indexed_.end()) {
      Fields fields{};
      for (const auto &e : object.entries)
        for (int i = 0; i < kFieldCount; ++i)
          if (!fields[i] && e.first == kFieldNames[i]) fields[i] = &e.second;
      it = indexed_.emplace(&object, fields).first;
    }
    return it->second[f];
  }

  ArchivedClass classOf(const RawNode &object) {
    const RawNode *cls = field(object, kClass);
    if (!cls || !cls->isUid() || cls->uid == 0 || cls->uid >= objects_.size()) return ArchivedClass::Unsupported;
    const std::string *name = scalarString(field(objects_[cls->uid], kClassName));
    return name ? classify(*name) : ArchivedClass::Unsupported;
  }

  // A field that is stored inline or behind a UID (never a container).
  const RawNode *scalarField(const RawNode &object, Field key) {
    const RawNode *f = field(object, key);
    if (f && f->isUid()) {
      if (f->uid == 0 || f->uid >= objects_.size()) return nullptr;
      f = &objects_[f->uid];
    }
    return f && f->isScalar() ? f : nullptr;
  }

  bool decodeInstance(const RawNode &object, size_t depth, Value &out) {
    switch (classOf(object)) {
      case ArchivedClass::Dictionary: {
        const RawNode *keys = field(object, kKeys);
        const RawNode *values = field(object, kObjects);
        if (!keys || !values || !keys->isArray() || !values->isArray() || keys->items.size() != values->items.size())
          return false;
        Value::Dictionary entries;
        entries.reserve(keys->items.size());
        for (size_t i = 0; i < keys->items.size(); ++i) {
          Value key, value;
          if (!decodeReference(keys->items[i], depth + 1, key) || !key.isString()) return false;
          if (!decodeReference(values->items[i], depth + 1, value)) return false;
          entries.emplace_back(*key.asString(), std::move(value));
        }
        out = Value::dictionary(std::move(entries));
        return true;
      }
      case ArchivedClass::Array: {
        const RawNode *values = field(object, kObjects);
        if (!values || !values->isArray()) return false;
        Value::Array items(values->items.size());
        for (size_t i = 0; i < items.size(); ++i)
          if (!decodeReference(values->items[i], depth + 1, items[i])) return false;
        out = Value::array(std::move(items));
        return true;
      }
      case ArchivedClass::String: {
        const RawNode *s = scalarField(object, kString);
        if (!s || !s->scalar.isString() || !addPayload(s->scalar)) return false;
        out = s->scalar;
        return true;
      }
      case ArchivedClass::Data: {
        const RawNode *d = scalarField(object, kData);
        if (!d) d = scalarField(object, kBytes);
        if (!d || !d->scalar.isData() || !addPayload(d->scalar)) return false;
        out = d->scalar;
        return true;
      }
      case ArchivedClass::Date: {
        const RawNode *t = scalarField(object, kTime);
        if (!t) return false;
        if (auto r = t->scalar.asReal()) {
          out = Value::date(*r);
          return true;
        }
        if (auto i = t->scalar.asInteger()) {
          out = Value::date(static_cast<double>(*i));
          return true;
        }
        return false;
      }
      case ArchivedClass::Unsupported:
        return false;
    }
    return false;
  }

  const std::vector<RawNode> &objects_;
  std::vector<uint8_t> onPath_;
  std::unordered_map<const RawNode *, Fields> indexed_;
  size_t nodes_ = 0;
  size_t payload_ = 0;
};

class Encoder {
 public:
  RawNode archive(const Value &root) {
    objects_.push_back(RawNode::makeScalar(Value::string("$null")));
    const uint64_t rootUid = encode(root);
    RawNode top = RawNode::makeDictionary();
    top.entries.emplace_back("root", RawNode::makeUid(rootUid));
    RawNode archive = RawNode::makeDictionary();
    archive.entries.emplace_back("$version", RawNode::makeScalar(Value::integer(kArchiveVersion)));
    archive.entries.emplace_back("$archiver", RawNode::makeScalar(Value::string("NSKeyedArchiver")));
    archive.entries.emplace_back("$top", std::move(top));
    archive.entries.emplace_back("$objects", RawNode::makeArray(std::move(objects_)));
    return archive;
  }

 private:
  uint64_t add(RawNode n) {
    objects_.push_back(std::move(n));
    return objects_.size() - 1;
  }

  uint64_t classUid(const char *name, const char *superclass) {
    for (const auto &c : classes_)
      if (c.first == name) return c.second;
    std::vector<RawNode> chain;
    chain.push_back(RawNode::makeScalar(Value::string(name)));
    if (superclass) chain.push_back(RawNode::makeScalar(Value::string(superclass)));
    chain.push_back(RawNode::makeScalar(Value::string("NSObject")));
    RawNode cls = RawNode::makeDictionary();
    cls.entries.emplace_back("$classes", RawNode::makeArray(std::move(chain)));
    cls.entries.emplace_back("$classname", RawNode::makeScalar(Value::string(name)));
    const uint64_t uid = add(std::move(cls));
    classes_.emplace_back(name, uid);
    return uid;
  }

  uint64_t encode(const Value &v) {
    if (const Value::Array *a = v.asArray()) {
      const uint64_t uid = add(RawNode());
      std::vector<RawNode> refs;
      refs.reserve(a->size());
      for (const Value &item : *a) refs.push_back(RawNode::makeUid(encode(item)));
      RawNode object = RawNode::makeDictionary();
      object.entries.emplace_back("NS.objects", RawNode::makeArray(std::move(refs)));
      object.entries.emplace_back("$class", RawNode::makeUid(classUid("NSArray", nullptr)));
      objects_[uid] = std::move(object);
      return uid;
    }
    if (const Value::Dictionary *d = v.asDictionary()) {
      const uint64_t uid = add(RawNode());
      std::vector<RawNode> keys, values;
      keys.reserve(d->size());
      values.reserve(d->size());
      for (const auto &e : *d) keys.push_back(RawNode::makeUid(add(RawNode::makeScalar(Value::string(e.first)))));
      for (const auto &e : *d) values.push_back(RawNode::makeUid(encode(e.second)));
      RawNode object = RawNode::makeDictionary();
      object.entries.emplace_back("NS.keys", RawNode::makeArray(std::move(keys)));
      object.entries.emplace_back("NS.objects", RawNode::makeArray(std::move(values)));
      object.entries.emplace_back("$class", RawNode::makeUid(classUid("NSDictionary", nullptr)));
      objects_[uid] = std::move(object);
      return uid;
    }
    if (auto seconds = v.asDate()) {
      RawNode object = RawNode::makeDictionary();
      object.entries.emplace_back("NS.time", RawNode::makeScalar(Value::real(*seconds)));
      object.entries.emplace_back("$class", RawNode::makeUid(classUid("NSDate", nullptr)));
      return add(std::move(object));
    }
    return add(RawNode::makeScalar(v));
  }

  std::vector<RawNode> objects_;
  std::vector<std::pair<std::string, uint64_t>> classes_;
};

}  // namespace

std::optional<Value> decodeKeyedArchive(const uint8_t *bytes, size_t size) {
  if (!bytes) return std::nullopt;
  std::optional<RawNode> raw;
  if (size >= 8 && std::memcmp(bytes, "bplist00", 8) == 0)
    raw = readBinaryPlistRaw(bytes, size);
  else
    raw = readXmlPlistRaw(bytes, size, true);
  if (!raw || !raw->isDictionary()) return std::nullopt;

  const std::string *archiver = scalarString(raw->find("$archiver"));
  if (!archiver || *archiver != "NSKeyedArchiver") return std::nullopt;
  const RawNode *version = raw->find("$version");
  if (!version || !version->isScalar() || version->scalar.asInteger() != kArchiveVersion) return std::nullopt;
  const RawNode *objects = raw->find("$objects");
  if (!objects || !objects->isArray() || objects->items.empty()) return std::nullopt;
  const std::string *null = scalarString(&objects->items[0]);
  if (!null || *null != "$null") return std::nullopt;
  const RawNode *top = raw->find("$top");
  const RawNode *root = top ? top->find("root") : nullptr;
  if (!root || !root->isUid()) return std::nullopt;

  Decoder decoder(objects->items);
  Value out;
  if (!decoder.decodeReference(*root, 0, out)) return std::nullopt;
  return out;
}

std::vector<uint8_t> encodeKeyedArchive(const Value &root) { return writeBinaryPlistRaw(Encoder().archive(root)); }

std::string encodeKeyedArchiveXml(const Value &root) { return writeXmlPlistRaw(Encoder().archive(root)); }

}  // namespace tessarin::plist
