#include "lists/SearchText.hpp"

#include <algorithm>
#include <iterator>

namespace tessarin::lists {

namespace {

struct Folding {
    char32_t from;
    const char *to;  // UTF-8
};

// Letters of the Latin-1 Supplement, Latin Extended-A and -B, Greek, Cyrillic, Latin Extended
// Additional and the Latin ligatures (U+FB00 to U+FB06) whose folded form differs from them:
// the compatibility decomposition without its combining marks, case-folded, decomposed and
// stripped again; letters that Unicode does not decompose (with a stroke, a hook, the
// ligatures "æ" and "œ", "þ", "ð", dotless "ı") as the plain letters people type for them.
// Sorted by code point.
constexpr Folding kFoldings[] = {
    {0x00C0, "a"}, {0x00C1, "a"}, {0x00C2, "a"}, {0x00C3, "a"}, {0x00C4, "a"}, {0x00C5, "a"}, {0x00C6, "ae"},
    {0x00C7, "c"}, {0x00C8, "e"}, {0x00C9, "e"}, {0x00CA, "e"}, {0x00CB, "e"}, {0x00CC, "i"}, {0x00CD, "i"},
    {0x00CE, "i"}, {0x00CF, "i"}, {0x00D0, "d"}, {0x00D1, "n"}, {0x00D2, "o"}, {0x00D3, "o"}, {0x00D4, "o"},
    {0x00D5, "o"}, {0x00D6, "o"}, {0x00D8, "o"}, {0x00D9, "u"}, {0x00DA, "u"}, {0x00DB, "u"}, {0x00DC, "u"},
    {0x00DD, "y"}, {0x00DE, "th"}, {0x00DF, "ss"}, {0x00E0, "a"}, {0x00E1, "a"}, {0x00E2, "a"}, {0x00E3, "a"},
    {0x00E4, "a"}, {0x00E5, "a"}, {0x00E6, "ae"}, {0x00E7, "c"}, {0x00E8, "e"}, {0x00E9, "e"}, {0x00EA, "e"},
    {0x00EB, "e"}, {0x00EC, "i"}, {0x00ED, "i"}, {0x00EE, "i"}, {0x00EF, "i"}, {0x00F0, "d"}, {0x00F1, "n"},
    {0x00F2, "o"}, {0x00F3, "o"}, {0x00F4, "o"}, {0x00F5, "o"}, {0x00F6, "o"}, {0x00F8, "o"}, {0x00F9, "u"},
    {0x00FA, "u"}, {0x00FB, "u"}, {0x00FC, "u"}, {0x00FD, "y"}, {0x00FE, "th"}, {0x00FF, "y"}, {0x0100, "a"},
    {0x0101, "a"}, {0x0102, "a"}, {0x0103, "a"}, {0x0104, "a"}, {0x0105, "a"}, {0x0106, "c"}, {0x0107, "c"},
    {0x0108, "c"}, {0x0109, "c"}, {0x010A, "c"}, {0x010B, "c"}, {0x010C, "c"}, {0x010D, "c"}, {0x010E, "d"},
    {0x010F, "d"}, {0x0110, "d"}, {0x0111, "d"}, {0x0112, "e"}, {0x0113, "e"}, {0x0114, "e"}, {0x0115, "e"},
    {0x0116, "e"}, {0x0117, "e"}, {0x0118, "e"}, {0x0119, "e"}, {0x011A, "e"}, {0x011B, "e"}, {0x011C, "g"},
    {0x011D, "g"}, {0x011E, "g"}, {0x011F, "g"}, {0x0120, "g"}, {0x0121, "g"}, {0x0122, "g"}, {0x0123, "g"},
    {0x0124, "h"}, {0x0125, "h"}, {0x0126, "h"}, {0x0127, "h"}, {0x0128, "i"}, {0x0129, "i"}, {0x012A, "i"},
    {0x012B, "i"}, {0x012C, "i"}, {0x012D, "i"}, {0x012E, "i"}, {0x012F, "i"}, {0x0130, "i"}, {0x0131, "i"},
    {0x0132, "ij"}, {0x0133, "ij"}, {0x0134, "j"}, {0x0135, "j"}, {0x0136, "k"}, {0x0137, "k"}, {0x0138, "k"},
    {0x0139, "l"}, {0x013A, "l"}, {0x013B, "l"}, {0x013C, "l"}, {0x013D, "l"}, {0x013E, "l"}, {0x013F, "l\xc2\xb7"},
    {0x0140, "l\xc2\xb7"}, {0x0141, "l"}, {0x0142, "l"}, {0x0143, "n"}, {0x0144, "n"}, {0x0145, "n"}, {0x0146, "n"},
    {0x0147, "n"}, {0x0148, "n"}, {0x0149, "\xca\xbcn"}, {0x014A, "n"}, {0x014B, "n"}, {0x014C, "o"}, {0x014D, "o"},
    {0x014E, "o"}, {0x014F, "o"}, {0x0150, "o"}, {0x0151, "o"}, {0x0152, "oe"}, {0x0153, "oe"}, {0x0154, "r"},
    {0x0155, "r"}, {0x0156, "r"}, {0x0157, "r"}, {0x0158, "r"}, {0x0159, "r"}, {0x015A, "s"}, {0x015B, "s"},
    {0x015C, "s"}, {0x015D, "s"}, {0x015E, "s"}, {0x015F, "s"}, {0x0160, "s"}, {0x0161, "s"}, {0x0162, "t"},
    {0x0163, "t"}, {0x0164, "t"}, {0x0165, "t"}, {0x0166, "t"}, {0x0167, "t"}, {0x0168, "u"}, {0x0169, "u"},
    {0x016A, "u"}, {0x016B, "u"}, {0x016C, "u"}, {0x016D, "u"}, {0x016E, "u"}, {0x016F, "u"}, {0x0170, "u"},
    {0x0171, "u"}, {0x0172, "u"}, {0x0173, "u"}, {0x0174, "w"}, {0x0175, "w"}, {0x0176, "y"}, {0x0177, "y"},
    {0x0178, "y"}, {0x0179, "z"}, {0x017A, "z"}, {0x017B, "z"}, {0x017C, "z"}, {0x017D, "z"}, {0x017E, "z"},
    {0x017F, "s"}, {0x0180, "b"}, {0x0181, "b"}, {0x0182, "b"}, {0x0183, "b"}, {0x0184, "\xc6\x85"},
    {0x0186, "\xc9\x94"}, {0x0187, "c"}, {0x0188, "c"}, {0x0189, "\xc9\x96"}, {0x018A, "d"}, {0x018B, "d"},
    {0x018C, "d"}, {0x018E, "\xc7\x9d"}, {0x018F, "\xc9\x99"}, {0x0190, "\xc9\x9b"}, {0x0191, "f"}, {0x0192, "f"},
    {0x0193, "g"}, {0x0194, "\xc9\xa3"}, {0x0196, "\xc9\xa9"}, {0x0197, "i"}, {0x0198, "k"}, {0x0199, "k"},
    {0x019A, "l"}, {0x019C, "\xc9\xaf"}, {0x019D, "n"}, {0x019E, "n"}, {0x019F, "o"}, {0x01A0, "o"}, {0x01A1, "o"},
    {0x01A2, "\xc6\xa3"}, {0x01A4, "p"}, {0x01A5, "p"}, {0x01A6, "\xca\x80"}, {0x01A7, "\xc6\xa8"},
    {0x01A9, "\xca\x83"}, {0x01AB, "t"}, {0x01AC, "t"}, {0x01AD, "t"}, {0x01AE, "t"}, {0x01AF, "u"}, {0x01B0, "u"},
    {0x01B1, "\xca\x8a"}, {0x01B2, "v"}, {0x01B3, "y"}, {0x01B4, "y"}, {0x01B5, "z"}, {0x01B6, "z"},
    {0x01B7, "\xca\x92"}, {0x01B8, "\xc6\xb9"}, {0x01BC, "\xc6\xbd"}, {0x01C4, "dz"}, {0x01C5, "dz"}, {0x01C6, "dz"},
    {0x01C7, "lj"}, {0x01C8, "lj"}, {0x01C9, "lj"}, {0x01CA, "nj"}, {0x01CB, "nj"}, {0x01CC, "nj"}, {0x01CD, "a"},
    {0x01CE, "a"}, {0x01CF, "i"}, {0x01D0, "i"}, {0x01D1, "o"}, {0x01D2, "o"}, {0x01D3, "u"}, {0x01D4, "u"},
    {0x01D5, "u"}, {0x01D6, "u"}, {0x01D7, "u"}, {0x01D8, "u"}, {0x01D9, "u"}, {0x01DA, "u"}, {0x01DB, "u"},
    {0x01DC, "u"}, {0x01DE, "a"}, {0x01DF, "a"}, {0x01E0, "a"}, {0x01E1, "a"}, {0x01E2, "ae"}, {0x01E3, "ae"},
    {0x01E4, "g"}, {0x01E5, "g"}, {0x01E6, "g"}, {0x01E7, "g"}, {0x01E8, "k"}, {0x01E9, "k"}, {0x01EA, "o"},
    {0x01EB, "o"}, {0x01EC, "o"}, {0x01ED, "o"}, {0x01EE, "\xca\x92"}, {0x01EF, "\xca\x92"}, {0x01F0, "j"},
    {0x01F1, "dz"}, {0x01F2, "dz"}, {0x01F3, "dz"}, {0x01F4, "g"}, {0x01F5, "g"}, {0x01F6, "\xc6\x95"},
    {0x01F7, "\xc6\xbf"}, {0x01F8, "n"}, {0x01F9, "n"}, {0x01FA, "a"}, {0x01FB, "a"}, {0x01FC, "ae"}, {0x01FD, "ae"},
    {0x01FE, "o"}, {0x01FF, "o"}, {0x0200, "a"}, {0x0201, "a"}, {0x0202, "a"}, {0x0203, "a"}, {0x0204, "e"},
    {0x0205, "e"}, {0x0206, "e"}, {0x0207, "e"}, {0x0208, "i"}, {0x0209, "i"}, {0x020A, "i"}, {0x020B, "i"},
    {0x020C, "o"}, {0x020D, "o"}, {0x020E, "o"}, {0x020F, "o"}, {0x0210, "r"}, {0x0211, "r"}, {0x0212, "r"},
    {0x0213, "r"}, {0x0214, "u"}, {0x0215, "u"}, {0x0216, "u"}, {0x0217, "u"}, {0x0218, "s"}, {0x0219, "s"},
    {0x021A, "t"}, {0x021B, "t"}, {0x021C, "\xc8\x9d"}, {0x021E, "h"}, {0x021F, "h"}, {0x0220, "n"}, {0x0221, "d"},
    {0x0222, "\xc8\xa3"}, {0x0224, "z"}, {0x0225, "z"}, {0x0226, "a"}, {0x0227, "a"}, {0x0228, "e"}, {0x0229, "e"},
    {0x022A, "o"}, {0x022B, "o"}, {0x022C, "o"}, {0x022D, "o"}, {0x022E, "o"}, {0x022F, "o"}, {0x0230, "o"},
    {0x0231, "o"}, {0x0232, "y"}, {0x0233, "y"}, {0x0234, "l"}, {0x0235, "n"}, {0x0236, "t"}, {0x0237, "j"},
    {0x023A, "a"}, {0x023B, "c"}, {0x023C, "c"}, {0x023D, "l"}, {0x023E, "t"}, {0x023F, "s"}, {0x0240, "z"},
    {0x0241, "\xc9\x82"}, {0x0243, "b"}, {0x0244, "u"}, {0x0245, "\xca\x8c"}, {0x0246, "e"}, {0x0247, "e"},
    {0x0248, "j"}, {0x0249, "j"}, {0x024A, "q"}, {0x024B, "q"}, {0x024C, "r"}, {0x024D, "r"}, {0x024E, "y"},
    {0x024F, "y"}, {0x0370, "\xcd\xb1"}, {0x0372, "\xcd\xb3"}, {0x0374, "\xca\xb9"}, {0x0376, "\xcd\xb7"},
    {0x037A, " "}, {0x037F, "\xcf\xb3"}, {0x0386, "\xce\xb1"}, {0x0388, "\xce\xb5"}, {0x0389, "\xce\xb7"},
    {0x038A, "\xce\xb9"}, {0x038C, "\xce\xbf"}, {0x038E, "\xcf\x85"}, {0x038F, "\xcf\x89"}, {0x0390, "\xce\xb9"},
    {0x0391, "\xce\xb1"}, {0x0392, "\xce\xb2"}, {0x0393, "\xce\xb3"}, {0x0394, "\xce\xb4"}, {0x0395, "\xce\xb5"},
    {0x0396, "\xce\xb6"}, {0x0397, "\xce\xb7"}, {0x0398, "\xce\xb8"}, {0x0399, "\xce\xb9"}, {0x039A, "\xce\xba"},
    {0x039B, "\xce\xbb"}, {0x039C, "\xce\xbc"}, {0x039D, "\xce\xbd"}, {0x039E, "\xce\xbe"}, {0x039F, "\xce\xbf"},
    {0x03A0, "\xcf\x80"}, {0x03A1, "\xcf\x81"}, {0x03A3, "\xcf\x83"}, {0x03A4, "\xcf\x84"}, {0x03A5, "\xcf\x85"},
    {0x03A6, "\xcf\x86"}, {0x03A7, "\xcf\x87"}, {0x03A8, "\xcf\x88"}, {0x03A9, "\xcf\x89"}, {0x03AA, "\xce\xb9"},
    {0x03AB, "\xcf\x85"}, {0x03AC, "\xce\xb1"}, {0x03AD, "\xce\xb5"}, {0x03AE, "\xce\xb7"}, {0x03AF, "\xce\xb9"},
    {0x03B0, "\xcf\x85"}, {0x03C2, "\xcf\x83"}, {0x03CA, "\xce\xb9"}, {0x03CB, "\xcf\x85"}, {0x03CC, "\xce\xbf"},
    {0x03CD, "\xcf\x85"}, {0x03CE, "\xcf\x89"}, {0x03CF, "\xcf\x97"}, {0x03D0, "\xce\xb2"}, {0x03D1, "\xce\xb8"},
    {0x03D2, "\xcf\x85"}, {0x03D3, "\xcf\x85"}, {0x03D4, "\xcf\x85"}, {0x03D5, "\xcf\x86"}, {0x03D6, "\xcf\x80"},
    {0x03D8, "\xcf\x99"}, {0x03DA, "\xcf\x9b"}, {0x03DC, "\xcf\x9d"}, {0x03DE, "\xcf\x9f"}, {0x03E0, "\xcf\xa1"},
    {0x03E2, "\xcf\xa3"}, {0x03E4, "\xcf\xa5"}, {0x03E6, "\xcf\xa7"}, {0x03E8, "\xcf\xa9"}, {0x03EA, "\xcf\xab"},
    {0x03EC, "\xcf\xad"}, {0x03EE, "\xcf\xaf"}, {0x03F0, "\xce\xba"}, {0x03F1, "\xcf\x81"}, {0x03F2, "\xcf\x83"},
    {0x03F4, "\xce\xb8"}, {0x03F5, "\xce\xb5"}, {0x03F7, "\xcf\xb8"}, {0x03F9, "\xcf\x83"}, {0x03FA, "\xcf\xbb"},
    {0x03FD, "\xcd\xbb"}, {0x03FE, "\xcd\xbc"}, {0x03FF, "\xcd\xbd"}, {0x0400, "\xd0\xb5"}, {0x0401, "\xd0\xb5"},
    {0x0402, "\xd1\x92"}, {0x0403, "\xd0\xb3"}, {0x0404, "\xd1\x94"}, {0x0405, "\xd1\x95"}, {0x0406, "\xd1\x96"},
    {0x0407, "\xd1\x96"}, {0x0408, "\xd1\x98"}, {0x0409, "\xd1\x99"}, {0x040A, "\xd1\x9a"}, {0x040B, "\xd1\x9b"},
    {0x040C, "\xd0\xba"}, {0x040D, "\xd0\xb8"}, {0x040E, "\xd1\x83"}, {0x040F, "\xd1\x9f"}, {0x0410, "\xd0\xb0"},
    {0x0411, "\xd0\xb1"}, {0x0412, "\xd0\xb2"}, {0x0413, "\xd0\xb3"}, {0x0414, "\xd0\xb4"}, {0x0415, "\xd0\xb5"},
    {0x0416, "\xd0\xb6"}, {0x0417, "\xd0\xb7"}, {0x0418, "\xd0\xb8"}, {0x0419, "\xd0\xb8"}, {0x041A, "\xd0\xba"},
    {0x041B, "\xd0\xbb"}, {0x041C, "\xd0\xbc"}, {0x041D, "\xd0\xbd"}, {0x041E, "\xd0\xbe"}, {0x041F, "\xd0\xbf"},
    {0x0420, "\xd1\x80"}, {0x0421, "\xd1\x81"}, {0x0422, "\xd1\x82"}, {0x0423, "\xd1\x83"}, {0x0424, "\xd1\x84"},
    {0x0425, "\xd1\x85"}, {0x0426, "\xd1\x86"}, {0x0427, "\xd1\x87"}, {0x0428, "\xd1\x88"}, {0x0429, "\xd1\x89"},
    {0x042A, "\xd1\x8a"}, {0x042B, "\xd1\x8b"}, {0x042C, "\xd1\x8c"}, {0x042D, "\xd1\x8d"}, {0x042E, "\xd1\x8e"},
    {0x042F, "\xd1\x8f"}, {0x0439, "\xd0\xb8"}, {0x0450, "\xd0\xb5"}, {0x0451, "\xd0\xb5"}, {0x0453, "\xd0\xb3"},
    {0x0457, "\xd1\x96"}, {0x045C, "\xd0\xba"}, {0x045D, "\xd0\xb8"}, {0x045E, "\xd1\x83"}, {0x0460, "\xd1\xa1"},
    {0x0462, "\xd1\xa3"}, {0x0464, "\xd1\xa5"}, {0x0466, "\xd1\xa7"}, {0x0468, "\xd1\xa9"}, {0x046A, "\xd1\xab"},
    {0x046C, "\xd1\xad"}, {0x046E, "\xd1\xaf"}, {0x0470, "\xd1\xb1"}, {0x0472, "\xd1\xb3"}, {0x0474, "\xd1\xb5"},
    {0x0476, "\xd1\xb5"}, {0x0477, "\xd1\xb5"}, {0x0478, "\xd1\xb9"}, {0x047A, "\xd1\xbb"}, {0x047C, "\xd1\xbd"},
    {0x047E, "\xd1\xbf"}, {0x0480, "\xd2\x81"}, {0x048A, "\xd2\x8b"}, {0x048C, "\xd2\x8d"}, {0x048E, "\xd2\x8f"},
    {0x0490, "\xd2\x91"}, {0x0492, "\xd2\x93"}, {0x0494, "\xd2\x95"}, {0x0496, "\xd2\x97"}, {0x0498, "\xd2\x99"},
    {0x049A, "\xd2\x9b"}, {0x049C, "\xd2\x9d"}, {0x049E, "\xd2\x9f"}, {0x04A0, "\xd2\xa1"}, {0x04A2, "\xd2\xa3"},
    {0x04A4, "\xd2\xa5"}, {0x04A6, "\xd2\xa7"}, {0x04A8, "\xd2\xa9"}, {0x04AA, "\xd2\xab"}, {0x04AC, "\xd2\xad"},
    {0x04AE, "\xd2\xaf"}, {0x04B0, "\xd2\xb1"}, {0x04B2, "\xd2\xb3"}, {0x04B4, "\xd2\xb5"}, {0x04B6, "\xd2\xb7"},
    {0x04B8, "\xd2\xb9"}, {0x04BA, "\xd2\xbb"}, {0x04BC, "\xd2\xbd"}, {0x04BE, "\xd2\xbf"}, {0x04C0, "\xd3\x8f"},
    {0x04C1, "\xd0\xb6"}, {0x04C2, "\xd0\xb6"}, {0x04C3, "\xd3\x84"}, {0x04C5, "\xd3\x86"}, {0x04C7, "\xd3\x88"},
    {0x04C9, "\xd3\x8a"}, {0x04CB, "\xd3\x8c"}, {0x04CD, "\xd3\x8e"}, {0x04D0, "\xd0\xb0"}, {0x04D1, "\xd0\xb0"},
    {0x04D2, "\xd0\xb0"}, {0x04D3, "\xd0\xb0"}, {0x04D4, "\xd3\x95"}, {0x04D6, "\xd0\xb5"}, {0x04D7, "\xd0\xb5"},
    {0x04D8, "\xd3\x99"}, {0x04DA, "\xd3\x99"}, {0x04DB, "\xd3\x99"}, {0x04DC, "\xd0\xb6"}, {0x04DD, "\xd0\xb6"},
    {0x04DE, "\xd0\xb7"}, {0x04DF, "\xd0\xb7"}, {0x04E0, "\xd3\xa1"}, {0x04E2, "\xd0\xb8"}, {0x04E3, "\xd0\xb8"},
    {0x04E4, "\xd0\xb8"}, {0x04E5, "\xd0\xb8"}, {0x04E6, "\xd0\xbe"}, {0x04E7, "\xd0\xbe"}, {0x04E8, "\xd3\xa9"},
    {0x04EA, "\xd3\xa9"}, {0x04EB, "\xd3\xa9"}, {0x04EC, "\xd1\x8d"}, {0x04ED, "\xd1\x8d"}, {0x04EE, "\xd1\x83"},
    {0x04EF, "\xd1\x83"}, {0x04F0, "\xd1\x83"}, {0x04F1, "\xd1\x83"}, {0x04F2, "\xd1\x83"}, {0x04F3, "\xd1\x83"},
    {0x04F4, "\xd1\x87"}, {0x04F5, "\xd1\x87"}, {0x04F6, "\xd3\xb7"}, {0x04F8, "\xd1\x8b"}, {0x04F9, "\xd1\x8b"},
    {0x04FA, "\xd3\xbb"}, {0x04FC, "\xd3\xbd"}, {0x04FE, "\xd3\xbf"}, {0x1E00, "a"}, {0x1E01, "a"}, {0x1E02, "b"},
    {0x1E03, "b"}, {0x1E04, "b"}, {0x1E05, "b"}, {0x1E06, "b"}, {0x1E07, "b"}, {0x1E08, "c"}, {0x1E09, "c"},
    {0x1E0A, "d"}, {0x1E0B, "d"}, {0x1E0C, "d"}, {0x1E0D, "d"}, {0x1E0E, "d"}, {0x1E0F, "d"}, {0x1E10, "d"},
    {0x1E11, "d"}, {0x1E12, "d"}, {0x1E13, "d"}, {0x1E14, "e"}, {0x1E15, "e"}, {0x1E16, "e"}, {0x1E17, "e"},
    {0x1E18, "e"}, {0x1E19, "e"}, {0x1E1A, "e"}, {0x1E1B, "e"}, {0x1E1C, "e"}, {0x1E1D, "e"}, {0x1E1E, "f"},
    {0x1E1F, "f"}, {0x1E20, "g"}, {0x1E21, "g"}, {0x1E22, "h"}, {0x1E23, "h"}, {0x1E24, "h"}, {0x1E25, "h"},
    {0x1E26, "h"}, {0x1E27, "h"}, {0x1E28, "h"}, {0x1E29, "h"}, {0x1E2A, "h"}, {0x1E2B, "h"}, {0x1E2C, "i"},
    {0x1E2D, "i"}, {0x1E2E, "i"}, {0x1E2F, "i"}, {0x1E30, "k"}, {0x1E31, "k"}, {0x1E32, "k"}, {0x1E33, "k"},
    {0x1E34, "k"}, {0x1E35, "k"}, {0x1E36, "l"}, {0x1E37, "l"}, {0x1E38, "l"}, {0x1E39, "l"}, {0x1E3A, "l"},
    {0x1E3B, "l"}, {0x1E3C, "l"}, {0x1E3D, "l"}, {0x1E3E, "m"}, {0x1E3F, "m"}, {0x1E40, "m"}, {0x1E41, "m"},
    {0x1E42, "m"}, {0x1E43, "m"}, {0x1E44, "n"}, {0x1E45, "n"}, {0x1E46, "n"}, {0x1E47, "n"}, {0x1E48, "n"},
    {0x1E49, "n"}, {0x1E4A, "n"}, {0x1E4B, "n"}, {0x1E4C, "o"}, {0x1E4D, "o"}, {0x1E4E, "o"}, {0x1E4F, "o"},
    {0x1E50, "o"}, {0x1E51, "o"}, {0x1E52, "o"}, {0x1E53, "o"}, {0x1E54, "p"}, {0x1E55, "p"}, {0x1E56, "p"},
    {0x1E57, "p"}, {0x1E58, "r"}, {0x1E59, "r"}, {0x1E5A, "r"}, {0x1E5B, "r"}, {0x1E5C, "r"}, {0x1E5D, "r"},
    {0x1E5E, "r"}, {0x1E5F, "r"}, {0x1E60, "s"}, {0x1E61, "s"}, {0x1E62, "s"}, {0x1E63, "s"}, {0x1E64, "s"},
    {0x1E65, "s"}, {0x1E66, "s"}, {0x1E67, "s"}, {0x1E68, "s"}, {0x1E69, "s"}, {0x1E6A, "t"}, {0x1E6B, "t"},
    {0x1E6C, "t"}, {0x1E6D, "t"}, {0x1E6E, "t"}, {0x1E6F, "t"}, {0x1E70, "t"}, {0x1E71, "t"}, {0x1E72, "u"},
    {0x1E73, "u"}, {0x1E74, "u"}, {0x1E75, "u"}, {0x1E76, "u"}, {0x1E77, "u"}, {0x1E78, "u"}, {0x1E79, "u"},
    {0x1E7A, "u"}, {0x1E7B, "u"}, {0x1E7C, "v"}, {0x1E7D, "v"}, {0x1E7E, "v"}, {0x1E7F, "v"}, {0x1E80, "w"},
    {0x1E81, "w"}, {0x1E82, "w"}, {0x1E83, "w"}, {0x1E84, "w"}, {0x1E85, "w"}, {0x1E86, "w"}, {0x1E87, "w"},
    {0x1E88, "w"}, {0x1E89, "w"}, {0x1E8A, "x"}, {0x1E8B, "x"}, {0x1E8C, "x"}, {0x1E8D, "x"}, {0x1E8E, "y"},
    {0x1E8F, "y"}, {0x1E90, "z"}, {0x1E91, "z"}, {0x1E92, "z"}, {0x1E93, "z"}, {0x1E94, "z"}, {0x1E95, "z"},
    {0x1E96, "h"}, {0x1E97, "t"}, {0x1E98, "w"}, {0x1E99, "y"}, {0x1E9A, "a\xca\xbe"}, {0x1E9B, "s"}, {0x1E9E, "ss"},
    {0x1EA0, "a"}, {0x1EA1, "a"}, {0x1EA2, "a"}, {0x1EA3, "a"}, {0x1EA4, "a"}, {0x1EA5, "a"}, {0x1EA6, "a"},
    {0x1EA7, "a"}, {0x1EA8, "a"}, {0x1EA9, "a"}, {0x1EAA, "a"}, {0x1EAB, "a"}, {0x1EAC, "a"}, {0x1EAD, "a"},
    {0x1EAE, "a"}, {0x1EAF, "a"}, {0x1EB0, "a"}, {0x1EB1, "a"}, {0x1EB2, "a"}, {0x1EB3, "a"}, {0x1EB4, "a"},
    {0x1EB5, "a"}, {0x1EB6, "a"}, {0x1EB7, "a"}, {0x1EB8, "e"}, {0x1EB9, "e"}, {0x1EBA, "e"}, {0x1EBB, "e"},
    {0x1EBC, "e"}, {0x1EBD, "e"}, {0x1EBE, "e"}, {0x1EBF, "e"}, {0x1EC0, "e"}, {0x1EC1, "e"}, {0x1EC2, "e"},
    {0x1EC3, "e"}, {0x1EC4, "e"}, {0x1EC5, "e"}, {0x1EC6, "e"}, {0x1EC7, "e"}, {0x1EC8, "i"}, {0x1EC9, "i"},
    {0x1ECA, "i"}, {0x1ECB, "i"}, {0x1ECC, "o"}, {0x1ECD, "o"}, {0x1ECE, "o"}, {0x1ECF, "o"}, {0x1ED0, "o"},
    {0x1ED1, "o"}, {0x1ED2, "o"}, {0x1ED3, "o"}, {0x1ED4, "o"}, {0x1ED5, "o"}, {0x1ED6, "o"}, {0x1ED7, "o"},
    {0x1ED8, "o"}, {0x1ED9, "o"}, {0x1EDA, "o"}, {0x1EDB, "o"}, {0x1EDC, "o"}, {0x1EDD, "o"}, {0x1EDE, "o"},
    {0x1EDF, "o"}, {0x1EE0, "o"}, {0x1EE1, "o"}, {0x1EE2, "o"}, {0x1EE3, "o"}, {0x1EE4, "u"}, {0x1EE5, "u"},
    {0x1EE6, "u"}, {0x1EE7, "u"}, {0x1EE8, "u"}, {0x1EE9, "u"}, {0x1EEA, "u"}, {0x1EEB, "u"}, {0x1EEC, "u"},
    {0x1EED, "u"}, {0x1EEE, "u"}, {0x1EEF, "u"}, {0x1EF0, "u"}, {0x1EF1, "u"}, {0x1EF2, "y"}, {0x1EF3, "y"},
    {0x1EF4, "y"}, {0x1EF5, "y"}, {0x1EF6, "y"}, {0x1EF7, "y"}, {0x1EF8, "y"}, {0x1EF9, "y"},
    {0x1EFA, "\xe1\xbb\xbb"}, {0x1EFC, "\xe1\xbb\xbd"}, {0x1EFE, "\xe1\xbb\xbf"}, {0xFB00, "ff"}, {0xFB01, "fi"},
    {0xFB02, "fl"}, {0xFB03, "ffi"}, {0xFB04, "ffl"}, {0xFB05, "st"}, {0xFB06, "st"},
};

// Decodes one UTF-8 character at `at` and moves past it; nothing (U+FFFF) for a byte that
// does not start a well-formed character, which is skipped alone.
constexpr char32_t kMalformed = 0xFFFF;

char32_t nextCharacter(std::string_view text, size_t &at) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    size_t length = 0;
    char32_t c = 0;
    char32_t least = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2, c = lead & 0x1F, least = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3, c = lead & 0x0F, least = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4, c = lead & 0x07, least = 0x10000;
    } else {
        ++at;
        return kMalformed;
    }
    if (at + length > text.size()) {
        ++at;
        return kMalformed;
    }
    for (size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) {
            ++at;
            return kMalformed;
        }
        c = (c << 6) | (byte(at + i) & 0x3F);
    }
    if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++at;
        return kMalformed;
    }
    at += length;
    return c;
}

void appendUtf8(std::string &out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool isCombiningMark(char32_t c) {
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x0483 && c <= 0x0489) || (c >= 0x1AB0 && c <= 0x1AFF) ||
           (c >= 0x1DC0 && c <= 0x1DFF) || (c >= 0x20D0 && c <= 0x20FF) || (c >= 0xFE20 && c <= 0xFE2F);
}

// Characters that show nothing: direction marks, embeddings, overrides and isolates;
// zero-width spaces and joiners; the word joiner and invisible operators; the byte-order
// mark; the soft hyphen; the Mongolian vowel separator; variation selectors.
bool isInvisible(char32_t c) {
    return c == 0x00AD || c == 0x061C || c == 0x180E || (c >= 0x200B && c <= 0x200F) ||
           (c >= 0x202A && c <= 0x202E) || (c >= 0x2060 && c <= 0x2064) || (c >= 0x2066 && c <= 0x206F) ||
           c == 0xFEFF || (c >= 0xFE00 && c <= 0xFE0F) || (c >= 0xE0100 && c <= 0xE01EF);
}

bool isSpace(char32_t c) {
    return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

// Appends the folded form of one character.
void appendFolded(std::string &out, char32_t c) {
    if (c == kMalformed || isInvisible(c) || isCombiningMark(c)) return;
    if (isSpace(c)) {
        out += ' ';
        return;
    }
    if (c >= 0xFF01 && c <= 0xFF5E) c -= 0xFEE0;  // fullwidth ASCII
    if (c < 0x80) {
        out += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
        return;
    }
    const auto found = std::lower_bound(std::begin(kFoldings), std::end(kFoldings), c,
                                        [](const Folding &f, char32_t value) { return f.from < value; });
    if (found != std::end(kFoldings) && found->from == c) {
        out += found->to;
        return;
    }
    appendUtf8(out, c);
}

}  // namespace

std::string foldForSearch(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (size_t at = 0; at < text.size();) appendFolded(out, nextCharacter(text, at));
    return out;
}

char indexLetter(std::string_view name) {
    std::string folded;
    for (size_t at = 0; at < name.size() && folded.empty();) {
        const char32_t c = nextCharacter(name, at);
        if (!isSpace(c)) appendFolded(folded, c);
    }
    if (folded.empty()) return '#';
    const char first = folded.front();
    return first >= 'a' && first <= 'z' ? static_cast<char>(first - 'a' + 'A') : '#';
}

bool isBlankName(std::string_view name) {
    for (size_t at = 0; at < name.size();) {
        const char32_t c = nextCharacter(name, at);
        if (c != kMalformed && !isSpace(c) && !isInvisible(c)) return false;
    }
    return true;
}

}  // namespace tessarin::lists
