// The XML property-list format: reader (hostile input) and writer.
#include <charconv>
#include <cstdio>
#include <cmath>
#include <cstring>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/RawNode.hpp"
#include "core/plist/RealText.hpp"
#include "core/plist/Utf.hpp"

namespace tessarin::plist {
namespace {

bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

std::string_view trim(std::string_view s) {
  while (!s.empty() && isSpace(s.front())) s.remove_prefix(1);
  while (!s.empty() && isSpace(s.back())) s.remove_suffix(1);
  return s;
}

// Days from 1970-01-01 to a proleptic Gregorian date.
int64_t daysFromCivil(int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const auto yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<int64_t>(doe) - 719468;
}

void civilFromDays(int64_t z, int64_t &y, unsigned &m, unsigned &d) {
  z += 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const auto doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  y = static_cast<int64_t>(yoe) + era * 400;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = doy - (153 * mp + 2) / 5 + 1;
  m = mp < 10 ? mp + 3 : mp - 9;
  y += m <= 2;
}

constexpr int64_t kReferenceDays = 11323;  // 2001-01-01 in days since 1970-01-01

// Years are written as Apple's writer writes them, printf's "%04d": at least four
// characters, a '-' before the years before year 0 (astronomical numbering, so year 0
// is 1 BC), more digits after year 9999. Apple's reader holds the year in 32 bits,
// which bounds the years written and read.
constexpr int64_t kMaxYear = 2147483647;

// "YYYY-MM-DDTHH:MM:SSZ", the year as described above.
bool parseDate(std::string_view s, double &out) {
  s = trim(s);
  const bool negative = !s.empty() && s.front() == '-';
  const size_t yearDigits = s.find('-', negative ? 1 : 0) - (negative ? 1 : 0);
  // The year field, sign included, is four to eleven characters.
  if (yearDigits + (negative ? 1 : 0) < 4 || yearDigits > 10) return false;
  const std::string_view rest = s.substr(yearDigits + (negative ? 1 : 0));
  // -MM-DDTHH:MM:SSZ
  if (rest.size() != 16 || rest[0] != '-' || rest[3] != '-' || rest[6] != 'T' || rest[9] != ':' || rest[12] != ':' ||
      rest[15] != 'Z')
    return false;
  auto num = [](std::string_view text, size_t at, size_t len, uint64_t &v) {
    v = 0;
    for (size_t i = at; i < at + len; ++i) {
      if (text[i] < '0' || text[i] > '9') return false;
      v = v * 10 + static_cast<uint64_t>(text[i] - '0');
    }
    return true;
  };
  uint64_t y, mo, d, h, mi, se;
  if (!num(s, negative ? 1 : 0, yearDigits, y) || !num(rest, 1, 2, mo) || !num(rest, 4, 2, d) || !num(rest, 7, 2, h) ||
      !num(rest, 10, 2, mi) || !num(rest, 13, 2, se))
    return false;
  if (y > static_cast<uint64_t>(kMaxYear)) return false;
  if (mo < 1 || mo > 12 || d < 1 || d > 31 || h > 23 || mi > 59 || se > 60) return false;
  const int64_t year = negative ? -static_cast<int64_t>(y) : static_cast<int64_t>(y);
  int64_t cy;
  unsigned cm, cd;
  const int64_t days = daysFromCivil(year, static_cast<unsigned>(mo), static_cast<unsigned>(d));
  civilFromDays(days, cy, cm, cd);
  if (cm != mo || cd != d) return false;  // 30 February and the like
  out = static_cast<double>((days - kReferenceDays) * 86400 + static_cast<int64_t>(h * 3600 + mi * 60 + se));
  return true;
}

bool parseInteger(std::string_view s, Value &out) {
  s = trim(s);
  bool negative = false;
  if (!s.empty() && (s.front() == '-' || s.front() == '+')) {
    negative = s.front() == '-';
    s.remove_prefix(1);
  }
  int base = 10;
  if (s.size() > 2 && s[0] == '0' && (s[1] == 'x' || s[1] == 'X')) {
    base = 16;
    s.remove_prefix(2);
  }
  if (s.empty()) return false;
  uint64_t magnitude = 0;
  const auto r = std::from_chars(s.data(), s.data() + s.size(), magnitude, base);
  if (r.ec != std::errc() || r.ptr != s.data() + s.size()) return false;
  if (!negative) {
    out = Value::unsignedInteger(magnitude);
    return true;
  }
  if (magnitude > uint64_t{1} << 63) return false;
  out = Value::integer(magnitude == uint64_t{1} << 63 ? INT64_MIN : -static_cast<int64_t>(magnitude));
  return true;
}

bool parseReal(std::string_view s, double &out) {
  s = trim(s);
  if (!s.empty() && s.front() == '+') s.remove_prefix(1);
  return parseRealText(s, out);
}

int base64Digit(char c) {
  if (c >= 'A' && c <= 'Z') return c - 'A';
  if (c >= 'a' && c <= 'z') return c - 'a' + 26;
  if (c >= '0' && c <= '9') return c - '0' + 52;
  if (c == '+') return 62;
  if (c == '/') return 63;
  return -1;
}

bool decodeBase64(std::string_view s, Value::Bytes &out) {
  uint32_t acc = 0;
  int bits = 0;
  bool padding = false;
  for (char c : s) {
    if (isSpace(c)) continue;
    if (c == '=') {
      padding = true;
      continue;
    }
    const int v = base64Digit(c);
    if (v < 0 || padding) return false;
    acc = (acc << 6) | static_cast<uint32_t>(v);
    bits += 6;
    if (bits >= 8) {
      bits -= 8;
      out.push_back(static_cast<uint8_t>(acc >> bits));
      acc &= (1u << bits) - 1;
    }
  }
  return true;
}

class XmlReader {
 public:
  XmlReader(std::string_view text, bool uidDictionaries) : s_(text), uids_(uidDictionaries) {}

  std::optional<RawNode> read() {
    if (!isValidUtf8(s_)) return std::nullopt;
    if (!skipMisc()) return std::nullopt;
    Tag tag;
    if (!readTag(tag) || tag.closing) return std::nullopt;
    RawNode root;
    if (tag.name == "plist") {
      if (tag.selfClosing) return std::nullopt;
      if (!skipMisc() || !readTag(tag) || tag.closing || !parseValue(tag, 0, root)) return std::nullopt;
      if (!skipMisc() || !readTag(tag) || !tag.closing || tag.name != "plist") return std::nullopt;
    } else if (!parseValue(tag, 0, root)) {
      return std::nullopt;
    }
    if (!skipMisc() || pos_ != s_.size()) return std::nullopt;
    return root;
  }

 private:
  struct Tag {
    std::string_view name;
    bool closing = false;
    bool selfClosing = false;
  };

  bool startsWith(std::string_view p) const { return s_.substr(pos_, p.size()) == p; }

  bool skipPast(std::string_view end) {
    const size_t at = s_.find(end, pos_);
    if (at == std::string_view::npos) return false;
    pos_ = at + end.size();
    return true;
  }

  // Whitespace, comments, processing instructions and the document type.
  bool skipMisc() {
    for (;;) {
      while (pos_ < s_.size() && isSpace(s_[pos_])) ++pos_;
      if (startsWith("<!--")) {
        if (!skipPast("-->")) return false;
      } else if (startsWith("<?")) {
        if (!skipPast("?>")) return false;
      } else if (startsWith("<!DOCTYPE")) {
        int brackets = 0;
        for (;;) {
          if (pos_ >= s_.size()) return false;
          const char c = s_[pos_++];
          if (c == '[')
            ++brackets;
          else if (c == ']')
            --brackets;
          else if (c == '>' && brackets <= 0)
            break;
        }
      } else {
        return true;
      }
    }
  }

  bool readTag(Tag &tag) {
    if (pos_ >= s_.size() || s_[pos_] != '<') return false;
    ++pos_;
    tag = Tag();
    if (pos_ < s_.size() && s_[pos_] == '/') {
      tag.closing = true;
      ++pos_;
    }
    const size_t start = pos_;
    while (pos_ < s_.size() && !isSpace(s_[pos_]) && s_[pos_] != '>' && s_[pos_] != '/') ++pos_;
    tag.name = s_.substr(start, pos_ - start);
    if (tag.name.empty()) return false;
    // Attributes are skipped; quoted values may hold '>' or '/'.
    char quote = 0;
    for (;;) {
      if (pos_ >= s_.size()) return false;
      const char c = s_[pos_++];
      if (quote) {
        if (c == quote) quote = 0;
      } else if (c == '"' || c == '\'') {
        quote = c;
      } else if (c == '/' && pos_ < s_.size() && s_[pos_] == '>') {
        if (tag.closing) return false;
        tag.selfClosing = true;
        ++pos_;
        return true;
      } else if (c == '>') {
        return true;
      }
    }
  }

  bool closeTag(std::string_view name) {
    Tag t;
    return readTag(t) && t.closing && t.name == name;
  }

  // Character data up to the closing tag of `name`, entities decoded.
  bool readText(std::string_view name, std::string &out) {
    for (;;) {
      if (pos_ >= s_.size()) return false;
      const char c = s_[pos_];
      if (c == '<') {
        if (startsWith("<![CDATA[")) {
          const size_t begin = pos_ + 9;
          const size_t end = s_.find("]]>", begin);
          if (end == std::string_view::npos) return false;
          out.append(s_.substr(begin, end - begin));
          pos_ = end + 3;
        } else if (startsWith("<!--")) {
          if (!skipPast("-->")) return false;
        } else {
          return closeTag(name);
        }
      } else if (c == '&') {
        if (!readEntity(out)) return false;
      } else {
        out.push_back(c);
        ++pos_;
      }
      if (out.size() > kMaxPayloadBytes) return false;
    }
  }

  bool readEntity(std::string &out) {
    const size_t end = s_.find(';', pos_);
    if (end == std::string_view::npos || end - pos_ > 12) return false;
    const std::string_view e = s_.substr(pos_ + 1, end - pos_ - 1);
    pos_ = end + 1;
    if (e == "lt")
      out.push_back('<');
    else if (e == "gt")
      out.push_back('>');
    else if (e == "amp")
      out.push_back('&');
    else if (e == "quot")
      out.push_back('"');
    else if (e == "apos")
      out.push_back('\'');
    else if (e.size() >= 2 && e[0] == '#') {
      uint32_t cp = 0;
      const bool hex = e[1] == 'x' || e[1] == 'X';
      const std::string_view digits = e.substr(hex ? 2 : 1);
      if (digits.empty()) return false;
      const auto r = std::from_chars(digits.data(), digits.data() + digits.size(), cp, hex ? 16 : 10);
      if (r.ec != std::errc() || r.ptr != digits.data() + digits.size()) return false;
      if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
      appendUtf8(out, cp);
    } else {
      return false;
    }
    return true;
  }

  bool textOf(const Tag &tag, std::string &out) {
    if (tag.selfClosing) return true;
    return readText(tag.name, out);
  }

  bool parseValue(const Tag &tag, size_t depth, RawNode &out) {
    if (tag.closing || depth > kMaxDepth || ++nodes_ > kMaxNodes) return false;
    const std::string_view n = tag.name;
    if (n == "dict") return parseDictionary(tag, depth, out);
    if (n == "array") return parseArray(tag, depth, out);
    if (n == "true" || n == "false") {
      if (!tag.selfClosing && !closeTag(n)) return false;
      out = RawNode::makeScalar(Value::boolean(n == "true"));
      return true;
    }
    std::string text;
    if (!textOf(tag, text)) return false;
    if (n == "string") {
      if (!addPayload(text.size())) return false;
      out = RawNode::makeScalar(Value::string(std::move(text)));
      return true;
    }
    if (n == "integer") {
      Value v;
      if (!parseInteger(text, v)) return false;
      out = RawNode::makeScalar(std::move(v));
      return true;
    }
    if (n == "real") {
      double d;
      if (!parseReal(text, d)) return false;
      out = RawNode::makeScalar(Value::real(d));
      return true;
    }
    if (n == "date") {
      double d;
      if (!parseDate(text, d)) return false;
      out = RawNode::makeScalar(Value::date(d));
      return true;
    }
    if (n == "data") {
      Value::Bytes bytes;
      if (!decodeBase64(text, bytes) || !addPayload(bytes.size())) return false;
      out = RawNode::makeScalar(Value::data(std::move(bytes)));
      return true;
    }
    return false;
  }

  bool parseArray(const Tag &tag, size_t depth, RawNode &out) {
    out = RawNode::makeArray();
    if (tag.selfClosing) return true;
    for (;;) {
      Tag t;
      if (!skipMisc() || !readTag(t)) return false;
      if (t.closing) return t.name == "array";
      out.items.emplace_back();
      if (!parseValue(t, depth + 1, out.items.back())) return false;
    }
  }

  bool parseDictionary(const Tag &tag, size_t depth, RawNode &out) {
    out = RawNode::makeDictionary();
    if (tag.selfClosing) return true;
    for (;;) {
      Tag t;
      if (!skipMisc() || !readTag(t)) return false;
      if (t.closing) {
        if (t.name != "dict") return false;
        break;
      }
      if (t.name != "key") return false;
      std::string key;
      if (!textOf(t, key) || !addPayload(key.size())) return false;
      if (!skipMisc() || !readTag(t)) return false;
      out.entries.emplace_back(std::move(key), RawNode());
      if (!parseValue(t, depth + 1, out.entries.back().second)) return false;
    }
    if (uids_ && out.entries.size() == 1 && out.entries[0].first == "CF$UID") {
      const RawNode &v = out.entries[0].second;
      if (v.isScalar()) {
        if (auto uid = v.scalar.asUnsigned()) out = RawNode::makeUid(*uid);
      }
    }
    return true;
  }

  bool addPayload(size_t n) {
    if (n > kMaxPayloadBytes - payload_) return false;
    payload_ += n;
    return true;
  }

  std::string_view s_;
  bool uids_;
  size_t pos_ = 0;
  size_t nodes_ = 0;
  size_t payload_ = 0;
};

/// Appends character data (of valid UTF-8) with '<', '>' and '&' as entities and a
/// carriage return as "&#13;": XML readers turn a raw one, alone or before a line feed,
/// into a line feed. Returns false, leaving `out` partly written, for a character that
/// XML 1.0 allows neither raw nor as a reference: the C0 controls other than tab, line
/// feed and carriage return, U+FFFE and U+FFFF. Apple's writer writes those raw, which
/// no XML reader but its own takes; Python's plistlib refuses the controls on writing,
/// as this writer does (the binary format carries them).
bool appendEscaped(std::string &out, std::string_view s) {
  for (size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    switch (c) {
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '&':
        out += "&amp;";
        break;
      case '\r':
        out += "&#13;";
        break;
      case '\t':
      case '\n':
        out.push_back(c);
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) return false;
        // U+FFFE and U+FFFF are EF BF BE and EF BF BF.
        if (static_cast<unsigned char>(c) == 0xEF && i + 2 < s.size() && static_cast<unsigned char>(s[i + 1]) == 0xBF &&
            (static_cast<unsigned char>(s[i + 2]) & 0xFE) == 0xBE)
          return false;
        out.push_back(c);
    }
  }
  return true;
}

void encodeBase64(std::string &out, const Value::Bytes &b) {
  static constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  size_t i = 0;
  for (; i + 3 <= b.size(); i += 3) {
    const uint32_t v = (uint32_t{b[i]} << 16) | (uint32_t{b[i + 1]} << 8) | b[i + 2];
    out.push_back(kDigits[v >> 18]);
    out.push_back(kDigits[(v >> 12) & 63]);
    out.push_back(kDigits[(v >> 6) & 63]);
    out.push_back(kDigits[v & 63]);
  }
  if (i < b.size()) {
    uint32_t v = uint32_t{b[i]} << 16;
    if (i + 1 < b.size()) v |= uint32_t{b[i + 1]} << 8;
    out.push_back(kDigits[v >> 18]);
    out.push_back(kDigits[(v >> 12) & 63]);
    out.push_back(i + 1 < b.size() ? kDigits[(v >> 6) & 63] : '=');
    out.push_back('=');
  }
}

// Whole seconds, rounded down (the format has no fraction), the year as parseDate
// reads it. False for a date that is not finite or whose year is beyond kMaxYear
// either way: no reader could take it back.
bool formatDate(std::string &out, double seconds) {
  // 1e17 s is some 3 billion years, past kMaxYear, and well inside int64.
  if (!std::isfinite(seconds) || std::fabs(seconds) > 1e17) return false;
  const auto total = static_cast<int64_t>(std::floor(seconds));
  int64_t days = total / 86400;
  int64_t rest = total % 86400;
  if (rest < 0) {
    rest += 86400;
    --days;
  }
  int64_t y;
  unsigned m, d;
  civilFromDays(days + kReferenceDays, y, m, d);
  if (y < -kMaxYear || y > kMaxYear) return false;
  char buf[40];
  std::snprintf(buf, sizeof buf, "%04lld-%02u-%02uT%02d:%02d:%02dZ", static_cast<long long>(y), m, d,
                static_cast<int>(rest / 3600), static_cast<int>(rest / 60 % 60), static_cast<int>(rest % 60));
  out += buf;
  return true;
}

// Apple's writer spells the infinities "+infinity" and "-infinity"; every reader takes
// those, and NaN as "nan".
std::string realText(double value) {
  if (std::isinf(value)) return value > 0 ? "+infinity" : "-infinity";
  return formatRealText(value);
}

bool writeNode(std::string &out, const RawNode &n, int indent) {
  out.append(static_cast<size_t>(indent), '\t');
  switch (n.kind) {
    case RawNode::Kind::Uid:
      out += "<dict>\n";
      out.append(static_cast<size_t>(indent + 1), '\t');
      out += "<key>CF$UID</key>\n";
      out.append(static_cast<size_t>(indent + 1), '\t');
      out += "<integer>" + std::to_string(n.uid) + "</integer>\n";
      out.append(static_cast<size_t>(indent), '\t');
      out += "</dict>\n";
      return true;
    case RawNode::Kind::Array:
      if (n.items.empty()) {
        out += "<array/>\n";
        return true;
      }
      out += "<array>\n";
      for (const RawNode &c : n.items)
        if (!writeNode(out, c, indent + 1)) return false;
      out.append(static_cast<size_t>(indent), '\t');
      out += "</array>\n";
      return true;
    case RawNode::Kind::Dictionary:
      if (n.entries.empty()) {
        out += "<dict/>\n";
        return true;
      }
      out += "<dict>\n";
      for (const auto &e : n.entries) {
        if (!isValidUtf8(e.first)) return false;
        out.append(static_cast<size_t>(indent + 1), '\t');
        out += "<key>";
        if (!appendEscaped(out, e.first)) return false;
        out += "</key>\n";
        if (!writeNode(out, e.second, indent + 1)) return false;
      }
      out.append(static_cast<size_t>(indent), '\t');
      out += "</dict>\n";
      return true;
    case RawNode::Kind::Scalar:
      break;
  }
  const Value &v = n.scalar;
  switch (v.kind()) {
    case Value::Kind::Boolean:
      out += *v.asBool() ? "<true/>\n" : "<false/>\n";
      return true;
    case Value::Kind::Integer:
      out += "<integer>";
      out += v.isUnsignedInteger() ? std::to_string(*v.asUnsigned()) : std::to_string(*v.asInteger());
      out += "</integer>\n";
      return true;
    case Value::Kind::Real: {
      out += "<real>";
      out += realText(*v.asReal());
      out += "</real>\n";
      return true;
    }
    case Value::Kind::Date:
      out += "<date>";
      if (!formatDate(out, *v.asDate())) return false;
      out += "</date>\n";
      return true;
    case Value::Kind::Data:
      out += "<data>";
      encodeBase64(out, *v.asData());
      out += "</data>\n";
      return true;
    case Value::Kind::String:
      if (!isValidUtf8(*v.asString())) return false;
      out += "<string>";
      if (!appendEscaped(out, *v.asString())) return false;
      out += "</string>\n";
      return true;
    default:
      return false;
  }
}

}  // namespace

std::optional<RawNode> readXmlPlistRaw(const uint8_t *bytes, size_t size, bool uidDictionaries) {
  if (!bytes) return std::nullopt;
  return XmlReader(std::string_view(reinterpret_cast<const char *>(bytes), size), uidDictionaries).read();
}

std::string writeXmlPlistRaw(const RawNode &root) {
  std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";
  if (!writeNode(out, root, 0)) return std::string();
  out += "</plist>\n";
  return out;
}

std::optional<Value> readXmlPlist(const uint8_t *bytes, size_t size) {
  std::optional<RawNode> raw = readXmlPlistRaw(bytes, size, false);
  if (!raw) return std::nullopt;
  return toValue(std::move(*raw));
}

std::string writeXmlPlist(const Value &value) { return writeXmlPlistRaw(toRaw(value)); }

}  // namespace tessarin::plist
