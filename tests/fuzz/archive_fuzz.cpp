// libFuzzer target for the property-list readers and the keyed-archive
// decoder: no input may crash them, and whatever they accept must encode
// and decode again to the same bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"

namespace plist = tessarin::plist;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (std::optional<plist::Value> v = plist::decodeKeyedArchive(data, size)) {
        const std::vector<uint8_t> again = plist::encodeKeyedArchive(*v);
        if (!again.empty()) {
            std::optional<plist::Value> back = plist::decodeKeyedArchive(again.data(), again.size());
            if (!back || plist::encodeKeyedArchive(*back) != again) std::abort();
        }
    }
    if (std::optional<plist::Value> p = plist::readPlist(data, size)) {
        const std::vector<uint8_t> bin = plist::writeBinaryPlist(*p);
        if (!bin.empty()) {
            std::optional<plist::Value> back = plist::readBinaryPlist(bin.data(), bin.size());
            if (!back || plist::writeBinaryPlist(*back) != bin) std::abort();
        }
    }
    return 0;
}
