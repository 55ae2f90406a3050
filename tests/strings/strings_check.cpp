// The bundle's texts in every language it ships, checked against the code and the English:
//
//   strings_check SOURCE_ROOT [RESOURCES]
//
// (RESOURCES, default SOURCE_ROOT/resources, lets the check's own test run it on a changed copy.)
//
// 1. Every key the product looks up exists in the English table: the keys of
//    localizedString(@"KEY", ...) in the pages, the {"KEY", "English"} texts of the core, and
//    the row identifiers of the plists whose rows the pages rename by identifier; where the
//    code gives the English text too, it is the table's, and one key has one English text.
// 2. Every text a specifier plist shows (page title, labels, footers, choice titles,
//    subtitles) is a key of the English table of the plist's name.
// 3. Every table of every language parses as a strings file as iOS reads one (UTF-8, or
//    UTF-16 with a byte order mark; quoted keys and values; no key twice).
// 4. Every language has exactly the English tables, each with exactly the English keys; no
//    value is empty (unless the English one is); format placeholders match the English key by
//    key (count and kind, positional forms honoured).
// 5. No value is left in English, except names and words the language keeps
//    (tests/strings/kept-words.txt).
// 6. A phrase the code looks for inside another text (the Face ID wording of the caller-ID
//    page) is found there in every language.
//
// Prints every fault, naming the language, table and key, and exits 1 when there is one.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>

#include "core/plist/BinaryPlist.hpp"

namespace {

using tessarin::plist::Value;

int gFaults = 0;

void fault(const std::string &message) {
  std::printf("strings check: %s\n", message.c_str());
  ++gFaults;
}

std::string quoted(const std::string &text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '\n')
      out += "\\n";
    else if (c == '"')
      out += "\\\"";
    else
      out += c;
  }
  out += "\"";
  if (out.size() > 90) out = out.substr(0, 80) + "...\"";
  return out;
}

std::optional<std::string> readFile(const std::string &path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<std::string> listDirectory(const std::string &path) {
  std::vector<std::string> names;
  if (DIR *dir = opendir(path.c_str())) {
    while (dirent *entry = readdir(dir)) {
      std::string name = entry->d_name;
      if (name != "." && name != "..") names.push_back(name);
    }
    closedir(dir);
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool isDirectory(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool endsWith(const std::string &text, const std::string &suffix) {
  return text.size() >= suffix.size() && text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

void appendUtf8(std::string &out, unsigned long cp) {
  if (cp < 0x80) {
    out += (char)cp;
  } else if (cp < 0x800) {
    out += (char)(0xC0 | (cp >> 6));
    out += (char)(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += (char)(0xE0 | (cp >> 12));
    out += (char)(0x80 | ((cp >> 6) & 0x3F));
    out += (char)(0x80 | (cp & 0x3F));
  } else {
    out += (char)(0xF0 | (cp >> 18));
    out += (char)(0x80 | ((cp >> 12) & 0x3F));
    out += (char)(0x80 | ((cp >> 6) & 0x3F));
    out += (char)(0x80 | (cp & 0x3F));
  }
}

bool validUtf8(const std::string &text) {
  for (size_t i = 0; i < text.size();) {
    const unsigned char c = text[i];
    size_t extra = c < 0x80 ? 0 : (c >> 5) == 6 ? 1 : (c >> 4) == 14 ? 2 : (c >> 3) == 30 ? 3 : 9;
    if (extra == 9 || i + extra >= text.size() + (extra == 0 ? 1 : 0)) return false;
    unsigned long cp = extra == 0 ? c : c & (0x3F >> extra);
    for (size_t k = 1; k <= extra; k++) {
      const unsigned char d = text[i + k];
      if ((d & 0xC0) != 0x80) return false;
      cp = (cp << 6) | (d & 0x3F);
    }
    if ((extra == 1 && cp < 0x80) || (extra == 2 && cp < 0x800) || (extra == 3 && (cp < 0x10000 || cp > 0x10FFFF)) ||
        (cp >= 0xD800 && cp <= 0xDFFF))
      return false;
    i += extra + 1;
  }
  return true;
}

// The file's text as UTF-8: UTF-8 with or without a byte order mark, or UTF-16 with one.
std::optional<std::string> decode(const std::string &bytes, std::string &why) {
  if (bytes.size() >= 2 && ((unsigned char)bytes[0] == 0xFF && (unsigned char)bytes[1] == 0xFE ||
                            (unsigned char)bytes[0] == 0xFE && (unsigned char)bytes[1] == 0xFF)) {
    const bool little = (unsigned char)bytes[0] == 0xFF;
    if (bytes.size() % 2 != 0) {
      why = "UTF-16 with an odd number of bytes";
      return std::nullopt;
    }
    std::string out;
    for (size_t i = 2; i < bytes.size(); i += 2) {
      auto unit = [&](size_t at) {
        const unsigned a = (unsigned char)bytes[at], b = (unsigned char)bytes[at + 1];
        return little ? (b << 8 | a) : (a << 8 | b);
      };
      unsigned long cp = unit(i);
      if (cp >= 0xD800 && cp <= 0xDBFF) {
        if (i + 2 >= bytes.size() || unit(i + 2) < 0xDC00 || unit(i + 2) > 0xDFFF) {
          why = "UTF-16 with an unpaired surrogate";
          return std::nullopt;
        }
        cp = 0x10000 + ((cp - 0xD800) << 10) + (unit(i + 2) - 0xDC00);
        i += 2;
      } else if (cp >= 0xDC00 && cp <= 0xDFFF) {
        why = "UTF-16 with an unpaired surrogate";
        return std::nullopt;
      }
      appendUtf8(out, cp);
    }
    return out;
  }
  std::string text = bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? bytes.substr(3) : bytes;
  if (!validUtf8(text)) {
    why = "neither UTF-8 nor UTF-16 with a byte order mark";
    return std::nullopt;
  }
  return text;
}

struct Table {
  std::vector<std::pair<std::string, std::string>> entries;  // in file order
  std::map<std::string, std::string> values;
};

// A strings file: comments, then "key" = "value"; entries. Strict: anything else is a fault.
std::optional<Table> parseStrings(const std::string &text, std::string &why) {
  Table table;
  size_t i = 0, line = 1;
  auto fail = [&](const std::string &what) {
    why = "line " + std::to_string(line) + ": " + what;
    return std::nullopt;
  };
  auto skip = [&]() -> bool {
    while (i < text.size()) {
      if (text[i] == '\n') {
        ++line;
        ++i;
      } else if (text[i] == ' ' || text[i] == '\t' || text[i] == '\r') {
        ++i;
      } else if (text.compare(i, 2, "/*") == 0) {
        const size_t end = text.find("*/", i + 2);
        if (end == std::string::npos) return false;
        line += std::count(text.begin() + i, text.begin() + end, '\n');
        i = end + 2;
      } else if (text.compare(i, 2, "//") == 0) {
        while (i < text.size() && text[i] != '\n') ++i;
      } else {
        break;
      }
    }
    return true;
  };
  auto quotedString = [&](std::string &out) -> bool {
    if (i >= text.size() || text[i] != '"') return false;
    ++i;
    while (i < text.size() && text[i] != '"') {
      char c = text[i++];
      if (c == '\n') ++line;
      if (c != '\\') {
        out += c;
        continue;
      }
      if (i >= text.size()) return false;
      const char e = text[i++];
      switch (e) {
        case 'n':
          out += '\n';
          break;
        case 't':
          out += '\t';
          break;
        case 'r':
          out += '\r';
          break;
        case '"':
        case '\\':
        case '\'':
          out += e;
          break;
        case 'U':
        case 'u': {
          if (i + 4 > text.size()) return false;
          const std::string hex = text.substr(i, 4);
          if (hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) return false;
          appendUtf8(out, std::stoul(hex, nullptr, 16));
          i += 4;
          break;
        }
        default:
          return false;
      }
    }
    if (i >= text.size()) return false;
    ++i;
    return true;
  };
  while (true) {
    if (!skip()) return fail("an unterminated comment");
    if (i >= text.size()) break;
    std::string key, value;
    if (!quotedString(key)) return fail("a key that is not a complete quoted string");
    if (!skip() || i >= text.size() || text[i] != '=') return fail("no \"=\" after " + quoted(key));
    ++i;
    if (!skip() || !quotedString(value))
      return fail("the value of " + quoted(key) + " is not a complete quoted string");
    if (!skip() || i >= text.size() || text[i] != ';') return fail("no \";\" after the value of " + quoted(key));
    ++i;
    if (table.values.count(key)) return fail("the key " + quoted(key) + " twice");
    table.values[key] = value;
    table.entries.emplace_back(key, value);
  }
  return table;
}

// A format placeholder: its position among the arguments and its kind ("@", "int", "long"...).
using Placeholders = std::map<int, std::string>;

// The placeholders of a format; nothing (with `why`) when positional and plain ones mix or a
// position is given twice with different kinds.
std::optional<Placeholders> placeholders(const std::string &text, std::string &why) {
  static const std::regex spec(
      R"(%(?:(\d+)\$)?[-+ #0']*(?:\d+|\*)?(?:\.(?:\d+|\*))?(hh|h|ll|l|q|L|z|t|j)?([@dDiuUxXoOfFeEgGcCsSpaA%]))");
  Placeholders found;
  int next = 1;
  bool positional = false, plain = false;
  for (std::sregex_iterator it(text.begin(), text.end(), spec), end; it != end; ++it) {
    const std::smatch &m = *it;
    const std::string conversion = m[3];
    if (conversion == "%") continue;
    std::string kind;
    if (conversion == "@")
      kind = "object";
    else if (std::string("dDiuUxXoOc").find(conversion) != std::string::npos)
      kind = "integer";
    else if (std::string("fFeEgGaA").find(conversion) != std::string::npos)
      kind = "floating";
    else if (conversion == "s" || conversion == "S")
      kind = "C string";
    else if (conversion == "C")
      kind = "unichar";
    else
      kind = "pointer";
    const std::string length = m[2];
    if (kind == "integer" && !length.empty()) kind = length + " integer";
    int position;
    if (m[1].matched) {
      positional = true;
      position = std::stoi(m[1]);
    } else {
      plain = true;
      position = next++;
    }
    auto known = found.find(position);
    if (known != found.end() && known->second != kind) {
      why = "argument " + std::to_string(position) + " used as two kinds";
      return std::nullopt;
    }
    found[position] = kind;
  }
  if (positional && plain) {
    why = "positional and plain placeholders mixed";
    return std::nullopt;
  }
  return found;
}

std::string describe(const Placeholders &p) {
  if (p.empty()) return "none";
  std::string out;
  for (const auto &[position, kind] : p) out += (out.empty() ? "" : ", ") + std::to_string(position) + ": " + kind;
  return out;
}

// Words a language keeps in English, by language ("*" for every language).
std::map<std::string, std::vector<std::string>> readKeptWords(const std::string &path) {
  std::map<std::string, std::vector<std::string>> kept;
  std::optional<std::string> text = readFile(path);
  if (!text) {
    fault("cannot read " + path);
    return kept;
  }
  std::istringstream lines(*text);
  std::string line;
  while (std::getline(lines, line)) {
    if (line.empty() || line[0] == '#') continue;
    const size_t colon = line.find(':');
    if (colon == std::string::npos) continue;
    const std::string language = line.substr(0, colon);
    std::string rest = line.substr(colon + 1);
    std::istringstream words(rest);
    std::string word;
    while (std::getline(words, word, '|')) {
      word.erase(0, word.find_first_not_of(' '));
      word.erase(word.find_last_not_of(' ') + 1);
      if (!word.empty()) kept[language].push_back(word);
    }
  }
  for (auto &[language, words] : kept)  // longest first, so "Tessarin Nova" goes before "Tessarin"
    std::sort(words.begin(), words.end(),
              [](const std::string &a, const std::string &b) { return a.size() > b.size(); });
  return kept;
}

// True when nothing but kept words, placeholders, digits and punctuation is left of `text`.
bool onlyKeptWords(std::string text, const std::vector<std::string> &kept) {
  for (const std::string &word : kept) {
    for (size_t at; (at = text.find(word)) != std::string::npos;) text.replace(at, word.size(), " ");
  }
  text = std::regex_replace(text, std::regex(R"(%(\d+\$)?@)"), " ");
  for (unsigned char c : text)
    if (std::isalpha(c) || c >= 0x80) return false;
  return true;
}

struct CodeKey {
  std::string english;  // empty when the code gives no literal English text
  std::string where;
};

std::string unescapeLiterals(const std::string &literals) {
  // Adjacent C or Objective-C literals: "a" "b" or @"a" @"b", with C escapes.
  std::string out;
  static const std::regex literal(R"re(@?"((?:[^"\\]|\\.)*)")re");
  for (std::sregex_iterator it(literals.begin(), literals.end(), literal), end; it != end; ++it) {
    const std::string body = (*it)[1];
    for (size_t i = 0; i < body.size(); i++) {
      if (body[i] != '\\' || i + 1 >= body.size()) {
        out += body[i];
        continue;
      }
      const char e = body[++i];
      if (e == 'n')
        out += '\n';
      else if (e == 't')
        out += '\t';
      else if (e == 'x' && i + 2 < body.size()) {
        out += (char)std::stoi(body.substr(i + 1, 2), nullptr, 16);
        i += 2;
      } else
        out += e;
    }
  }
  return out;
}

void collectSourceFiles(const std::string &dir, std::vector<std::string> &files) {
  for (const std::string &name : listDirectory(dir)) {
    const std::string path = dir + "/" + name;
    if (isDirectory(path))
      collectSourceFiles(path, files);
    else if (endsWith(name, ".mm") || endsWith(name, ".cpp") || endsWith(name, ".hpp") || endsWith(name, ".h"))
      files.push_back(path);
  }
}

void addCodeKey(std::map<std::string, CodeKey> &keys, const std::string &key, const std::string &english,
                const std::string &where) {
  auto known = keys.find(key);
  if (known == keys.end()) {
    keys[key] = {english, where};
  } else if (!english.empty() && !known->second.english.empty() && known->second.english != english) {
    fault("the key \"" + key + "\" has two English texts in the code: " + quoted(known->second.english) + " (" +
          known->second.where + ") and " + quoted(english) + " (" + where + ")");
  } else if (known->second.english.empty()) {
    known->second = {english, where};
  }
}

std::map<std::string, CodeKey> keysInCode(const std::string &root) {
  std::map<std::string, CodeKey> keys;
  std::vector<std::string> files;
  collectSourceFiles(root + "/prefs", files);
  // localizedString(@"KEY", @"English" ...) in the pages; the English only when it is a literal.
  static const std::regex lookup(R"re(localizedString\(\s*@"([A-Za-z0-9_]+)"\s*,\s*((?:@"(?:[^"\\]|\\.)*"\s*)+)?)re");
  // {"KEY", "English"} in the core: a LocalText (or a bundle text of the passcode pages).
  static const std::regex text(R"re(\{\s*"([A-Z][A-Z0-9_]*)"\s*,\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\})re");
  for (const std::string &file : files) {
    std::optional<std::string> source = readFile(file);
    if (!source) continue;
    const std::string where = file.substr(root.size() + 1);
    for (std::sregex_iterator it(source->begin(), source->end(), lookup), end; it != end; ++it)
      addCodeKey(keys, (*it)[1], (*it)[2].matched ? unescapeLiterals((*it)[2]) : std::string(), where);
    if (endsWith(file, ".cpp") || endsWith(file, ".hpp"))
      for (std::sregex_iterator it(source->begin(), source->end(), text), end; it != end; ++it)
        addCodeKey(keys, (*it)[1], unescapeLiterals((*it)[2]), where);
  }
  return keys;
}

// The texts a specifier plist shows, which the Preferences framework localises from the
// plist's own table; and the row identifiers.
void plistTexts(const Value &plist, std::set<std::string> &texts, std::vector<std::string> &ids) {
  auto add = [&](const Value *value) {
    if (const std::string *s = value ? value->asString() : nullptr; s && !s->empty()) texts.insert(*s);
  };
  add(plist.find("title"));
  const Value *items = plist.find("items");
  for (size_t i = 0; items != nullptr && i < items->size(); i++) {
    const Value *item = items->at(i);
    for (const char *key : {"label", "footerText", "cellSubtitleText"}) add(item->find(key));
    for (const char *key : {"validTitles", "shortTitles"})
      if (const Value *titles = item->find(key))
        for (size_t k = 0; k < titles->size(); k++) add(titles->at(k));
    if (const Value *id = item->find("id"); id && id->asString()) ids.push_back(*id->asString());
  }
}

// The pages that rename their plist rows by identifier through the Localizable table (the
// root page and the passcode options page).
const char *const kPlistsRenamedById[] = {"TessarinPrefs", "TessarinPasscodeProtection"};

// Phrases the code looks for inside the texts of a table to adapt them (the caller-ID page on a
// Face ID device): every text of the table that holds the English phrase must hold the
// language's phrase.
struct PhraseRule {
  const char *phraseKey;
  const char *table;
};
const PhraseRule kPhraseRules[] = {
    {"CALLERID_LIFT_FINGER_PHRASE", "TessarinCallerIDProtection.strings"},
    {"TOUCH_ID", "TessarinCallerIDProtection.strings"},
};

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2 && argc != 3) {
    std::fprintf(stderr, "usage: strings_check SOURCE_ROOT [RESOURCES]\n");
    return 2;
  }
  const std::string root = argv[1];
  const std::string resources = argc == 3 ? argv[2] : root + "/resources";
  const std::map<std::string, std::vector<std::string>> keptWords =
      readKeptWords(root + "/tests/strings/kept-words.txt");

  // Every table of every language, parsed.
  std::map<std::string, std::map<std::string, Table>> languages;  // language -> table file -> table
  for (const std::string &entry : listDirectory(resources)) {
    if (!endsWith(entry, ".lproj") || !isDirectory(resources + "/" + entry)) continue;
    const std::string language = entry.substr(0, entry.size() - 6);
    auto &tables = languages[language];
    for (const std::string &file : listDirectory(resources + "/" + entry)) {
      const std::string path = resources + "/" + entry + "/" + file;
      if (!endsWith(file, ".strings")) {
        fault(language + ": " + file + " is not a strings table");
        continue;
      }
      std::string why;
      std::optional<std::string> bytes = readFile(path);
      std::optional<std::string> text = bytes ? decode(*bytes, why) : std::nullopt;
      std::optional<Table> table = text ? parseStrings(*text, why) : std::nullopt;
      if (!table) {
        fault(language + ": " + file + " does not parse as a strings file: " + why);
        continue;
      }
      tables[file] = *table;
    }
  }
  if (!languages.count("en")) {
    fault("there is no en.lproj");
    return 1;
  }
  const std::map<std::string, Table> &english = languages["en"];
  const Table *localizable = english.count("Localizable.strings") ? &english.at("Localizable.strings") : nullptr;
  if (localizable == nullptr) fault("en: there is no Localizable.strings");

  // 1. The keys the code looks up.
  const std::map<std::string, CodeKey> codeKeys = keysInCode(root);
  for (const auto &[key, use] : codeKeys) {
    if (localizable == nullptr) break;
    auto found = localizable->values.find(key);
    if (found == localizable->values.end())
      fault("en: Localizable.strings lacks the key \"" + key + "\" that " + use.where + " looks up");
    else if (!use.english.empty() && found->second != use.english)
      fault("en: Localizable.strings gives \"" + key + "\" the English " + quoted(found->second) + ", the code (" +
            use.where + ") " + quoted(use.english));
  }

  // 2. The plists' texts, and the identifiers of the rows renamed by identifier.
  for (const std::string &file : listDirectory(resources)) {
    if (!endsWith(file, ".plist") || file == "Info.plist") continue;
    const std::string name = file.substr(0, file.size() - 6);
    std::optional<std::string> bytes = readFile(resources + "/" + file);
    std::optional<Value> plist =
        bytes ? tessarin::plist::readPlist(reinterpret_cast<const uint8_t *>(bytes->data()), bytes->size())
              : std::nullopt;
    if (!plist) {
      fault(file + " does not parse as a property list");
      continue;
    }
    std::set<std::string> texts;
    std::vector<std::string> ids;
    plistTexts(*plist, texts, ids);
    auto table = english.find(name + ".strings");
    if (table == english.end()) {
      fault("en: there is no " + name + ".strings for the texts of " + file);
    } else {
      for (const std::string &text : texts)
        if (!table->second.values.count(text))
          fault("en: " + name + ".strings lacks " + file + "'s text " + quoted(text));
    }
    if (std::find(std::begin(kPlistsRenamedById), std::end(kPlistsRenamedById), name) != std::end(kPlistsRenamedById) &&
        localizable != nullptr)
      for (const std::string &id : ids)
        if (!localizable->values.count(id))
          fault("en: Localizable.strings lacks the key \"" + id + "\" of a row of " + file +
                " (renamed by identifier)");
  }

  // 3-5. Every other language against the English.
  for (const auto &[language, tables] : languages) {
    if (language == "en") continue;
    std::vector<std::string> kept = keptWords.count("*") ? keptWords.at("*") : std::vector<std::string>();
    if (keptWords.count(language)) {
      const auto &own = keptWords.at(language);
      kept.insert(kept.end(), own.begin(), own.end());
      std::sort(kept.begin(), kept.end(),
                [](const std::string &a, const std::string &b) { return a.size() > b.size(); });
    }
    for (const auto &[file, englishTable] : english) {
      auto found = tables.find(file);
      if (found == tables.end()) {
        fault(language + ": there is no " + file);
        continue;
      }
      const Table &table = found->second;
      for (const auto &[key, englishValue] : englishTable.entries) {
        auto value = table.values.find(key);
        if (value == table.values.end()) {
          fault(language + ": " + file + " lacks the key " + quoted(key));
          continue;
        }
        const std::string &translated = value->second;
        if (englishValue.empty()) {
          if (!translated.empty())
            fault(language + ": " + file + " gives " + quoted(key) + " a text; the English is empty");
          continue;
        }
        if (translated.empty()) {
          fault(language + ": " + file + " leaves " + quoted(key) + " empty");
          continue;
        }
        std::string why;
        std::optional<Placeholders> want = placeholders(englishValue, why);
        std::optional<Placeholders> have = placeholders(translated, why);
        if (!have)
          fault(language + ": " + file + " " + quoted(key) + ": " + why);
        else if (want && *want != *have)
          fault(language + ": " + file + " " + quoted(key) + " has the placeholders " + describe(*have) +
                "; the English has " + describe(*want));
        if (translated == englishValue && !onlyKeptWords(translated, kept))
          fault(language + ": " + file + " leaves " + quoted(key) + " in English: " + quoted(translated));
      }
      for (const auto &[key, value] : table.entries)
        if (!englishTable.values.count(key))
          fault(language + ": " + file + " has the key " + quoted(key) + ", English has not");
    }
    for (const auto &[file, table] : tables)
      if (!english.count(file)) fault(language + ": " + file + " is not one of the English tables");

    // 6. Phrases looked for inside other texts.
    const auto ownLocalizable = tables.find("Localizable.strings");
    for (const PhraseRule &rule : kPhraseRules) {
      if (localizable == nullptr || ownLocalizable == tables.end() || !english.count(rule.table) ||
          !tables.count(rule.table))
        continue;
      auto englishPhrase = localizable->values.find(rule.phraseKey);
      auto phrase = ownLocalizable->second.values.find(rule.phraseKey);
      if (englishPhrase == localizable->values.end() || phrase == ownLocalizable->second.values.end()) continue;
      for (const auto &[key, englishValue] : english.at(rule.table).entries) {
        if (englishValue.find(englishPhrase->second) == std::string::npos) continue;
        auto value = tables.at(rule.table).values.find(key);
        if (value != tables.at(rule.table).values.end() && value->second.find(phrase->second) == std::string::npos)
          fault(language + ": " + rule.table + " " + quoted(key) + " does not hold the phrase " +
                quoted(phrase->second) + " of \"" + rule.phraseKey + "\", which the code replaces in it");
      }
    }
  }

  size_t keys = 0;
  for (const auto &[file, table] : english) keys += table.entries.size();
  if (gFaults == 0) {
    std::printf(
        "strings check: %zu languages besides English, %zu tables, %zu keys in each language: all there, all "
        "translated\n",
        languages.size() - 1, english.size(), keys);
    return 0;
  }
  std::printf("strings check: %d fault%s\n", gFaults, gFaults == 1 ? "" : "s");
  return 1;
}
