#include "core/plist/BinaryPlist.hpp"

#include <cstring>

#include "core/plist/RawNode.hpp"
#include "core/plist/Utf.hpp"

namespace tessarin::plist {
namespace {

constexpr uint8_t kMagic[8] = {'b', 'p', 'l', 'i', 's', 't', '0', '0'};
constexpr size_t kHeaderSize = 8;
constexpr size_t kTrailerSize = 32;

uint64_t readBigEndian(const uint8_t *p, size_t n) {
  uint64_t v = 0;
  for (size_t i = 0; i < n; ++i) v = (v << 8) | p[i];
  return v;
}

double readDouble(const uint8_t *p) {
  const uint64_t bits = readBigEndian(p, 8);
  double d;
  std::memcpy(&d, &bits, sizeof d);
  return d;
}

float readFloat(const uint8_t *p) {
  const auto bits = static_cast<uint32_t>(readBigEndian(p, 4));
  float f;
  std::memcpy(&f, &bits, sizeof f);
  return f;
}

// Reads one binary property list. Objects must lie between the header and
// the offset table; every reference is checked against the object count;
// an object may not contain itself; depth, node count and payload are capped.
class Reader {
 public:
  Reader(const uint8_t *bytes, size_t size) : bytes_(bytes), size_(size) {}

  std::optional<RawNode> read() {
    if (!bytes_ || size_ < kHeaderSize + kTrailerSize) return std::nullopt;
    if (std::memcmp(bytes_, kMagic, sizeof kMagic) != 0) return std::nullopt;
    const uint8_t *t = bytes_ + size_ - kTrailerSize;
    offsetSize_ = t[6];
    refSize_ = t[7];
    count_ = readBigEndian(t + 8, 8);
    const uint64_t top = readBigEndian(t + 16, 8);
    tableOffset_ = readBigEndian(t + 24, 8);
    if (offsetSize_ < 1 || offsetSize_ > 8 || refSize_ < 1 || refSize_ > 8) return std::nullopt;
    if (count_ == 0 || top >= count_) return std::nullopt;
    const uint64_t trailerStart = size_ - kTrailerSize;
    if (tableOffset_ < kHeaderSize || tableOffset_ > trailerStart) return std::nullopt;
    // The offset table must fit between its start and the trailer.
    if (count_ > (trailerStart - tableOffset_) / offsetSize_) return std::nullopt;
    objectEnd_ = static_cast<size_t>(tableOffset_);
    onPath_.assign(static_cast<size_t>(count_), 0);
    RawNode root;
    if (!parse(top, 0, root)) return std::nullopt;
    return root;
  }

 private:
  bool has(size_t pos, uint64_t n) const { return pos <= objectEnd_ && n <= objectEnd_ - pos; }

  bool objectOffset(uint64_t index, size_t &offset) const {
    const uint8_t *p = bytes_ + tableOffset_ + index * offsetSize_;
    const uint64_t off = readBigEndian(p, offsetSize_);
    if (off < kHeaderSize || off >= objectEnd_) return false;
    offset = static_cast<size_t>(off);
    return true;
  }

  // The length of a data, string or container object: the low nibble, or
  // an integer object that follows the marker when the nibble is 0xF.
  bool length(size_t &pos, uint8_t nibble, uint64_t &len) const {
    if (nibble != 0x0F) {
      len = nibble;
      return true;
    }
    if (!has(pos, 1)) return false;
    const uint8_t marker = bytes_[pos++];
    if ((marker & 0xF0) != 0x10) return false;
    const size_t n = size_t{1} << (marker & 0x0F);
    if ((marker & 0x0F) > 3 || !has(pos, n)) return false;
    len = readBigEndian(bytes_ + pos, n);
    if (n == 8 && len > static_cast<uint64_t>(INT64_MAX)) return false;
    pos += n;
    return true;
  }

  bool addPayload(uint64_t n) {
    if (n > kMaxPayloadBytes - payload_) return false;
    payload_ += static_cast<size_t>(n);
    return true;
  }

  bool parseChild(size_t refPos, size_t depth, RawNode &out) {
    const uint64_t ref = readBigEndian(bytes_ + refPos, refSize_);
    if (ref >= count_) return false;
    return parse(ref, depth, out);
  }

  bool parse(uint64_t index, size_t depth, RawNode &out) {
    if (depth > kMaxDepth || onPath_[index]) return false;
    if (++nodes_ > kMaxNodes) return false;
    size_t pos;
    if (!objectOffset(index, pos)) return false;
    const uint8_t marker = bytes_[pos++];
    const uint8_t nibble = marker & 0x0F;
    switch (marker >> 4) {
      case 0x0:
        if (marker == 0x08 || marker == 0x09) {
          out = RawNode::makeScalar(Value::boolean(marker == 0x09));
          return true;
        }
        return false;  // null and fill have no property-list meaning
      case 0x1:
        return parseInteger(pos, nibble, out);
      case 0x2: {
        if (nibble == 2 && has(pos, 4)) {
          out = RawNode::makeScalar(Value::real(static_cast<double>(readFloat(bytes_ + pos))));
          return true;
        }
        if (nibble == 3 && has(pos, 8)) {
          out = RawNode::makeScalar(Value::real(readDouble(bytes_ + pos)));
          return true;
        }
        return false;
      }
      case 0x3:
        if (marker != 0x33 || !has(pos, 8)) return false;
        out = RawNode::makeScalar(Value::date(readDouble(bytes_ + pos)));
        return true;
      case 0x4: {
        uint64_t len;
        if (!length(pos, nibble, len) || !has(pos, len) || !addPayload(len)) return false;
        out = RawNode::makeScalar(Value::data(Value::Bytes(bytes_ + pos, bytes_ + pos + len)));
        return true;
      }
      case 0x5: {
        uint64_t len;
        if (!length(pos, nibble, len) || !has(pos, len) || !addPayload(len)) return false;
        std::string s(reinterpret_cast<const char *>(bytes_ + pos), static_cast<size_t>(len));
        if (!isAscii(s)) return false;
        out = RawNode::makeScalar(Value::string(std::move(s)));
        return true;
      }
      case 0x6: {
        uint64_t units;
        if (!length(pos, nibble, units) || units > objectEnd_ / 2 || !has(pos, units * 2)) return false;
        if (!addPayload(units * 3)) return false;
        std::string s;
        if (!decodeUtf16(bytes_ + pos, static_cast<size_t>(units), s)) return false;
        out = RawNode::makeScalar(Value::string(std::move(s)));
        return true;
      }
      case 0x8: {
        // The marker allows up to 16 bytes; a reference wider than 64 bits could
        // only be read by dropping its high bytes, which would point it elsewhere.
        const size_t n = size_t{nibble} + 1;
        if (n > 8 || !has(pos, n)) return false;
        out = RawNode::makeUid(readBigEndian(bytes_ + pos, n));
        return true;
      }
      case 0xA:
      case 0xB:
      case 0xC:
        return parseArray(index, pos, nibble, depth, out);
      case 0xD:
        return parseDictionary(index, pos, nibble, depth, out);
      default:
        return false;
    }
  }

  bool parseInteger(size_t pos, uint8_t nibble, RawNode &out) {
    if (nibble <= 3) {
      const size_t n = size_t{1} << nibble;
      if (!has(pos, n)) return false;
      const uint64_t v = readBigEndian(bytes_ + pos, n);
      // 1, 2 and 4 byte integers are unsigned (they fit an int64);
      // 8 byte ones are signed, two's complement.
      out = RawNode::makeScalar(Value::integer(static_cast<int64_t>(v)));
      return true;
    }
    if (nibble == 4) {
      if (!has(pos, 16)) return false;
      const uint64_t high = readBigEndian(bytes_ + pos, 8);
      const uint64_t low = readBigEndian(bytes_ + pos + 8, 8);
      if (high == 0) {
        out = RawNode::makeScalar(Value::unsignedInteger(low));
        return true;
      }
      if (high == ~uint64_t{0} && (low >> 63) != 0) {
        out = RawNode::makeScalar(Value::integer(static_cast<int64_t>(low)));
        return true;
      }
      return false;  // beyond 64 bits
    }
    return false;
  }

  static bool decodeUtf16(const uint8_t *p, size_t units, std::string &out) {
    out.reserve(units);
    for (size_t i = 0; i < units; ++i) {
      uint32_t u = (uint32_t{p[2 * i]} << 8) | p[2 * i + 1];
      if (u >= 0xD800 && u <= 0xDBFF) {
        if (i + 1 >= units) return false;
        const uint32_t lo = (uint32_t{p[2 * i + 2]} << 8) | p[2 * i + 3];
        if (lo < 0xDC00 || lo > 0xDFFF) return false;
        u = 0x10000 + ((u - 0xD800) << 10) + (lo - 0xDC00);
        ++i;
      } else if (u >= 0xDC00 && u <= 0xDFFF) {
        return false;
      }
      appendUtf8(out, u);
    }
    return true;
  }

  bool parseArray(uint64_t index, size_t pos, uint8_t nibble, size_t depth, RawNode &out) {
    uint64_t count;
    if (!length(pos, nibble, count) || count > objectEnd_ / refSize_ || !has(pos, count * refSize_)) return false;
    onPath_[index] = 1;
    std::vector<RawNode> items(static_cast<size_t>(count));
    bool ok = true;
    for (size_t i = 0; ok && i < count; ++i) ok = parseChild(pos + i * refSize_, depth + 1, items[i]);
    onPath_[index] = 0;
    if (!ok) return false;
    out = RawNode::makeArray(std::move(items));
    return true;
  }

  bool parseDictionary(uint64_t index, size_t pos, uint8_t nibble, size_t depth, RawNode &out) {
    uint64_t count;
    if (!length(pos, nibble, count) || count > objectEnd_ / (2 * refSize_) || !has(pos, count * 2 * refSize_))
      return false;
    onPath_[index] = 1;
    std::vector<std::pair<std::string, RawNode>> entries(static_cast<size_t>(count));
    bool ok = true;
    for (size_t i = 0; ok && i < count; ++i) {
      RawNode key;
      ok = parseChild(pos + i * refSize_, depth + 1, key) && key.isScalar() && key.scalar.isString();
      if (ok) {
        entries[i].first = std::move(*const_cast<std::string *>(key.scalar.asString()));
        ok = parseChild(pos + (count + i) * refSize_, depth + 1, entries[i].second);
      }
    }
    onPath_[index] = 0;
    if (!ok) return false;
    out = RawNode::makeDictionary(std::move(entries));
    return true;
  }

  const uint8_t *bytes_;
  size_t size_;
  size_t offsetSize_ = 0;
  size_t refSize_ = 0;
  uint64_t count_ = 0;
  uint64_t tableOffset_ = 0;
  size_t objectEnd_ = 0;
  std::vector<uint8_t> onPath_;
  size_t nodes_ = 0;
  size_t payload_ = 0;
};

void putBigEndian(std::vector<uint8_t> &out, uint64_t v, size_t n) {
  for (size_t i = n; i-- > 0;) out.push_back(static_cast<uint8_t>(v >> (8 * i)));
}

size_t bytesFor(uint64_t v) {
  if (v <= 0xFF) return 1;
  if (v <= 0xFFFF) return 2;
  if (v <= 0xFFFFFFFFu) return 4;
  return 8;
}

class Writer {
 public:
  bool write(const RawNode &root, std::vector<uint8_t> &out) {
    const size_t total = countObjects(root);
    refSize_ = bytesFor(total);
    objects_.reserve(total);
    if (!emit(root)) return false;

    out.assign(kMagic, kMagic + sizeof kMagic);
    std::vector<uint64_t> offsets;
    offsets.reserve(objects_.size());
    for (const auto &o : objects_) {
      offsets.push_back(out.size());
      out.insert(out.end(), o.begin(), o.end());
    }
    const uint64_t tableOffset = out.size();
    const size_t offsetSize = bytesFor(tableOffset);
    for (uint64_t off : offsets) putBigEndian(out, off, offsetSize);
    for (int i = 0; i < 6; ++i) out.push_back(0);
    out.push_back(static_cast<uint8_t>(offsetSize));
    out.push_back(static_cast<uint8_t>(refSize_));
    putBigEndian(out, objects_.size(), 8);
    putBigEndian(out, 0, 8);
    putBigEndian(out, tableOffset, 8);
    return true;
  }

 private:
  static size_t countObjects(const RawNode &n) {
    size_t c = 1;
    for (const RawNode &i : n.items) c += countObjects(i);
    for (const auto &e : n.entries) c += 1 + countObjects(e.second);
    return c;
  }

  static void marker(std::vector<uint8_t> &o, uint8_t type, uint64_t len) {
    if (len < 15) {
      o.push_back(static_cast<uint8_t>(type | len));
      return;
    }
    o.push_back(static_cast<uint8_t>(type | 0x0F));
    const size_t n = bytesFor(len);
    o.push_back(static_cast<uint8_t>(0x10 | (n == 1 ? 0 : n == 2 ? 1 : n == 4 ? 2 : 3)));
    putBigEndian(o, len, n);
  }

  static void writeDouble(std::vector<uint8_t> &o, uint8_t m, double d) {
    o.push_back(m);
    uint64_t bits;
    std::memcpy(&bits, &d, sizeof bits);
    putBigEndian(o, bits, 8);
  }

  static bool writeString(std::vector<uint8_t> &o, const std::string &s) {
    if (isAscii(s)) {
      marker(o, 0x50, s.size());
      o.insert(o.end(), s.begin(), s.end());
      return true;
    }
    std::vector<uint16_t> units;
    if (!utf8ToUtf16(s, units)) return false;
    marker(o, 0x60, units.size());
    for (uint16_t u : units) putBigEndian(o, u, 2);
    return true;
  }

  static bool writeScalar(std::vector<uint8_t> &o, const Value &v) {
    switch (v.kind()) {
      case Value::Kind::Boolean:
        o.push_back(*v.asBool() ? 0x09 : 0x08);
        return true;
      case Value::Kind::Integer: {
        if (v.isUnsignedInteger()) {
          o.push_back(0x14);
          putBigEndian(o, 0, 8);
          putBigEndian(o, *v.asUnsigned(), 8);
          return true;
        }
        const int64_t i = *v.asInteger();
        const size_t n = i < 0 ? 8 : bytesFor(static_cast<uint64_t>(i));
        // 8-byte integers are signed; the shorter forms unsigned.
        o.push_back(static_cast<uint8_t>(0x10 | (n == 1 ? 0 : n == 2 ? 1 : n == 4 ? 2 : 3)));
        putBigEndian(o, static_cast<uint64_t>(i), n);
        return true;
      }
      case Value::Kind::Real:
        writeDouble(o, 0x23, *v.asReal());
        return true;
      case Value::Kind::Date:
        writeDouble(o, 0x33, *v.asDate());
        return true;
      case Value::Kind::Data: {
        const Value::Bytes &b = *v.asData();
        marker(o, 0x40, b.size());
        o.insert(o.end(), b.begin(), b.end());
        return true;
      }
      case Value::Kind::String:
        return writeString(o, *v.asString());
      default:
        return false;
    }
  }

  // Numbers objects in pre-order: a container comes before its contents.
  bool emit(const RawNode &n) {
    const size_t index = objects_.size();
    objects_.emplace_back();
    std::vector<uint8_t> o;
    switch (n.kind) {
      case RawNode::Kind::Scalar:
        if (!writeScalar(o, n.scalar)) return false;
        break;
      case RawNode::Kind::Uid: {
        const size_t len = bytesFor(n.uid);
        o.push_back(static_cast<uint8_t>(0x80 | (len - 1)));
        putBigEndian(o, n.uid, len);
        break;
      }
      case RawNode::Kind::Array: {
        marker(o, 0xA0, n.items.size());
        for (const RawNode &child : n.items) {
          const size_t ref = objects_.size();
          if (!emit(child)) return false;
          putBigEndian(o, ref, refSize_);
        }
        break;
      }
      case RawNode::Kind::Dictionary: {
        marker(o, 0xD0, n.entries.size());
        std::vector<uint8_t> valueRefs;
        for (const auto &e : n.entries) {
          const size_t keyRef = objects_.size();
          objects_.emplace_back();
          if (!writeString(objects_[keyRef], e.first)) return false;
          putBigEndian(o, keyRef, refSize_);
          const size_t valueRef = objects_.size();
          if (!emit(e.second)) return false;
          putBigEndian(valueRefs, valueRef, refSize_);
        }
        o.insert(o.end(), valueRefs.begin(), valueRefs.end());
        break;
      }
    }
    objects_[index] = std::move(o);
    return true;
  }

  size_t refSize_ = 1;
  std::vector<std::vector<uint8_t>> objects_;
};

}  // namespace

std::optional<RawNode> readBinaryPlistRaw(const uint8_t *bytes, size_t size) { return Reader(bytes, size).read(); }

std::vector<uint8_t> writeBinaryPlistRaw(const RawNode &root) {
  std::vector<uint8_t> out;
  if (!Writer().write(root, out)) out.clear();
  return out;
}

std::optional<Value> readBinaryPlist(const uint8_t *bytes, size_t size) {
  std::optional<RawNode> raw = readBinaryPlistRaw(bytes, size);
  if (!raw) return std::nullopt;
  return toValue(std::move(*raw));
}

std::vector<uint8_t> writeBinaryPlist(const Value &value) { return writeBinaryPlistRaw(toRaw(value)); }

std::optional<Value> readPlist(const uint8_t *bytes, size_t size) {
  if (bytes && size >= kHeaderSize && std::memcmp(bytes, kMagic, kHeaderSize) == 0) return readBinaryPlist(bytes, size);
  return readXmlPlist(bytes, size);
}

}  // namespace tessarin::plist
