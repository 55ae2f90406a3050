#import "core/Strings.h"

NSString *nsString(std::string_view text) {
  return [[[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding] autorelease];
}

NSString *nsStringOrEmpty(std::string_view text) {
  NSString *string = nsString(text);
  return string != nil ? string : @"";
}

std::string stdString(id object) { return utf8String(object).value_or(std::string()); }

std::optional<std::string> utf8String(id object) {
  if (![object isKindOfClass:[NSString class]]) return std::nullopt;
  const char *utf8 = [(NSString *)object UTF8String];
  if (utf8 == NULL) return std::nullopt;
  return std::string(utf8);
}
