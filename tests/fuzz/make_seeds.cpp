// Writes a few keyed archives (binary and XML) into a directory, as a
// starting corpus for archive_fuzz: archive_fuzz_seeds <dir>.
#include <cstdio>
#include <string>
#include <vector>

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
    return 0;
}
