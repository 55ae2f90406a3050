// Decoding one large dictionary in each format a reply or a preference file may
// take: a binary property list, an XML property list and a keyed archive (the
// reply format). Replies are decoded on Settings' main thread, so what matters is
// how the time grows with the number of keys: each format is timed at 10,000 keys
// and at a larger size, whose run shows time(large) / time(10,000) as its "growth"
// column beside "keys_ratio", the growth that linear decoding would show.
// The larger size is 100,000 keys for the property lists; a keyed archive of
// 100,000 keys expands to more nodes than kMaxNodes allows (about four per key:
// the key, the value and a reference to each) and is refused, so archives are
// timed at 60,000 keys, the largest round size under that cap.
//   build/bench/plist_bench
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"
#include "core/plist/RawNode.hpp"
#include "core/plist/Value.hpp"

namespace plist = tessarin::plist;
using plist::RawNode;
using plist::Value;

namespace {

enum class Format { Binary, Xml, Archive };

constexpr int64_t kSmall = 10000;
constexpr int64_t kLarge = 100000;
constexpr int64_t kLargeArchive = 60000;

// Keys in a scrambled order (7919 is prime, so i -> i * 7919 mod n is a
// permutation of both sizes), values alternately integers and strings.
std::vector<std::pair<std::string, Value>> entriesOf(int64_t keys) {
  std::vector<std::pair<std::string, Value>> entries;
  entries.reserve(static_cast<size_t>(keys));
  for (int64_t i = 0; i < keys; ++i) {
    const int64_t k = i * 7919 % keys;
    entries.emplace_back("com.example.key" + std::to_string(k),
                         k % 2 ? Value::string("value " + std::to_string(k)) : Value::integer(k));
  }
  return entries;
}

// The file is built around the writers' raw forms so that building it does not
// itself go through dictionary insertion.
std::vector<uint8_t> fileOf(Format format, int64_t keys) {
  std::vector<std::pair<std::string, Value>> entries = entriesOf(keys);
  if (format == Format::Archive) {
    Value dict = Value::dictionary();
    *dict.asDictionary() = std::move(entries);
    return plist::encodeKeyedArchive(dict);
  }
  std::vector<std::pair<std::string, RawNode>> raw;
  raw.reserve(entries.size());
  for (auto &e : entries) raw.emplace_back(std::move(e.first), RawNode::makeScalar(std::move(e.second)));
  const RawNode root = RawNode::makeDictionary(std::move(raw));
  if (format == Format::Binary) return plist::writeBinaryPlistRaw(root);
  const std::string xml = plist::writeXmlPlistRaw(root);
  return std::vector<uint8_t>(xml.begin(), xml.end());
}

std::optional<Value> decode(Format format, const std::vector<uint8_t> &bytes) {
  switch (format) {
    case Format::Binary:
      return plist::readBinaryPlist(bytes.data(), bytes.size());
    case Format::Xml:
      return plist::readXmlPlist(bytes.data(), bytes.size());
    case Format::Archive:
      return plist::decodeKeyedArchive(bytes.data(), bytes.size());
  }
  return std::nullopt;
}

// Seconds per decode of the last run of each format and size.
std::map<std::pair<Format, int64_t>, double> secondsPerDecode;

void decodeDictionary(benchmark::State &state, Format format) {
  const int64_t keys = state.range(0);
  const std::vector<uint8_t> bytes = fileOf(format, keys);
  const auto start = std::chrono::steady_clock::now();
  for (auto _ : state) {
    std::optional<Value> v = decode(format, bytes);
    if (!v || v->size() != static_cast<size_t>(keys)) {
      state.SkipWithError("the dictionary did not decode whole");
      return;
    }
    benchmark::DoNotOptimize(v);
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() /
                         static_cast<double>(state.iterations());
  secondsPerDecode[{format, keys}] = seconds;
  state.counters["file_KiB"] = static_cast<double>(bytes.size()) / 1024.0;
  const auto small = secondsPerDecode.find({format, kSmall});
  if (keys > kSmall && small != secondsPerDecode.end()) {
    state.counters["growth"] = seconds / small->second;
    state.counters["keys_ratio"] = static_cast<double>(keys) / static_cast<double>(kSmall);
  }
}

}  // namespace

// Small before large in each format: the large run reads the small one's time.
BENCHMARK_CAPTURE(decodeDictionary, binary, Format::Binary)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeDictionary, xml, Format::Xml)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeDictionary, keyedArchive, Format::Archive)
    ->Arg(kSmall)
    ->Arg(kLargeArchive)
    ->Unit(benchmark::kMillisecond);
