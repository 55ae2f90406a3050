// Writes a starting corpus for archive_fuzz into a directory: keyed archives
// (binary and XML) and plain property lists (binary and XML) with dates,
// reals and every other kind of value: archive_fuzz_seeds <dir>.
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"

namespace plist = tessarin::plist;
using plist::Value;

static void save(const std::string &path, const void *bytes, size_t size) {
  if (FILE *f = std::fopen(path.c_str(), "wb")) {
    std::fwrite(bytes, 1, size, f);
    std::fclose(f);
  }
}

int main(int argc, char **argv) {
  if (argc < 2) return 1;
  const std::string dir = argv[1];
  Value network = Value::dictionary();
  network.set("ssid", Value::string("Home"));
  network.set("bssid", Value::string("aa:bb:cc:dd:ee:ff"));
  network.set("password", Value::string("secret"));
  Value replies[4] = {Value::dictionary(), Value::dictionary(), Value::dictionary(), Value::dictionary()};
  replies[0].set("dlbv", Value::unsignedInteger(10203));
  replies[1].set("networks", Value::array({network, network}));
  replies[2].set("showsInLockScreen", Value::boolean(true));
  replies[3].set("mixed", Value::array({Value::real(1.5), Value::date(817034400.0), Value::data({1, 2, 3}),
                                        Value::integer(-5), Value::string("caf\xC3\xA9")}));
  for (int i = 0; i < 4; ++i) {
    const std::vector<uint8_t> bin = plist::encodeKeyedArchive(replies[i]);
    save(dir + "/seed" + std::to_string(i) + ".bplist", bin.data(), bin.size());
    const std::string xml = plist::encodeKeyedArchiveXml(replies[i]);
    save(dir + "/seed" + std::to_string(i) + ".xml", xml.data(), xml.size());
  }

  // Plain property lists, where dates are <date> elements in XML.
  const double dates[] = {0.0, 817034400.0, -978307200.0, 63113904000.0 - 1, -63114076800.0, 1.75, -0.5};
  Value dated = Value::array();
  for (double d : dates) dated.append(Value::date(d));
  Value mixed = Value::dictionary();
  mixed.set("when", Value::date(817034400.0));
  mixed.set("lastJoined", Value::date(-31.25));
  mixed.set("ratio", Value::real(0.1));
  mixed.set("huge", Value::unsignedInteger(std::numeric_limits<uint64_t>::max()));
  mixed.set("min", Value::integer(std::numeric_limits<int64_t>::min()));
  mixed.set("nan", Value::real(std::nan("")));
  mixed.set("inf", Value::real(-HUGE_VAL));
  mixed.set("text", Value::string("a <b> & c \xE2\x82\xAC"));
  mixed.set("bytes", Value::data({0, 255, 128, 7}));
  mixed.set("flags", Value::array({Value::boolean(true), Value::boolean(false)}));
  mixed.set("list", dated);
  const Value plists[] = {dated, mixed, Value::date(31.0)};
  for (size_t i = 0; i < sizeof plists / sizeof plists[0]; ++i) {
    const std::vector<uint8_t> bin = plist::writeBinaryPlist(plists[i]);
    save(dir + "/plist" + std::to_string(i) + ".bplist", bin.data(), bin.size());
    const std::string xml = plist::writeXmlPlist(plists[i]);
    save(dir + "/plist" + std::to_string(i) + ".xml", xml.data(), xml.size());
  }
  // Dates the writer never produces: a leap second, a leap day, surrounding blanks.
  const std::string handwritten =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<array>\n"
      "\t<date>2016-12-31T23:59:60Z</date>\n\t<date>2000-02-29T12:00:00Z</date>\n"
      "\t<date> 9999-12-31T23:59:59Z </date>\n\t<date>0000-01-01T00:00:00Z</date>\n"
      "</array>\n</plist>\n";
  save(dir + "/dates.xml", handwritten.data(), handwritten.size());
  return 0;
}
