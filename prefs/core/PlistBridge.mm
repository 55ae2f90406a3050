#import "core/PlistBridge.h"
#include <string.h>

using tessarin::plist::Value;

namespace {

// Deeper structures are not property lists we write or accept.
constexpr int kMaxDepth = 64;

BOOL isBooleanNumber(NSNumber *number) {
  static Class booleanClass = Nil;
  if (booleanClass == Nil) booleanClass = [[NSNumber numberWithBool:YES] class];
  return [number class] == booleanClass;
}

std::optional<Value> valueFromObject(id object, int depth) {
  if (object == nil || depth > kMaxDepth) return std::nullopt;
  if ([object isKindOfClass:[NSString class]]) {
    const char *utf8 = [(NSString *)object UTF8String];
    return Value::string(utf8 ? utf8 : "");
  }
  if ([object isKindOfClass:[NSNumber class]]) {
    NSNumber *number = object;
    if (isBooleanNumber(number)) return Value::boolean([number boolValue]);
    const char *type = [number objCType];
    if (type != NULL && (strcmp(type, "d") == 0 || strcmp(type, "f") == 0)) return Value::real([number doubleValue]);
    if (type != NULL && (strcmp(type, "Q") == 0 || strcmp(type, "L") == 0)) {
      return Value::unsignedInteger([number unsignedLongLongValue]);
    }
    return Value::integer([number longLongValue]);
  }
  if ([object isKindOfClass:[NSData class]]) {
    NSData *data = object;
    const uint8_t *bytes = (const uint8_t *)[data bytes];
    return Value::data(Value::Bytes(bytes, bytes + [data length]));
  }
  if ([object isKindOfClass:[NSDate class]]) return Value::date([(NSDate *)object timeIntervalSinceReferenceDate]);
  if ([object isKindOfClass:[NSArray class]]) {
    Value::Array items;
    for (id item in (NSArray *)object) {
      std::optional<Value> converted = valueFromObject(item, depth + 1);
      if (!converted) return std::nullopt;
      items.push_back(std::move(*converted));
    }
    return Value::array(std::move(items));
  }
  if ([object isKindOfClass:[NSDictionary class]]) {
    Value::Dictionary entries;
    NSDictionary *dictionary = object;
    for (id key in dictionary) {
      if (![key isKindOfClass:[NSString class]]) return std::nullopt;
      std::optional<Value> converted = valueFromObject([dictionary objectForKey:key], depth + 1);
      if (!converted) return std::nullopt;
      const char *utf8 = [(NSString *)key UTF8String];
      entries.emplace_back(utf8 ? utf8 : "", std::move(*converted));
    }
    return Value::dictionary(std::move(entries));
  }
  return std::nullopt;
}

NSString *stringFromUTF8(const std::string &text) {
  NSString *string = [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                             encoding:NSUTF8StringEncoding] autorelease];
  return string ? string : @"";
}

}  // namespace

id objectFromPlistValue(const Value &value) {
  switch (value.kind()) {
    case Value::Kind::Boolean:
      return [NSNumber numberWithBool:*value.asBool()];
    case Value::Kind::Integer:
      if (value.isUnsignedInteger()) return [NSNumber numberWithUnsignedLongLong:*value.asUnsigned()];
      return [NSNumber numberWithLongLong:*value.asInteger()];
    case Value::Kind::Real:
      return [NSNumber numberWithDouble:*value.asReal()];
    case Value::Kind::String:
      return stringFromUTF8(*value.asString());
    case Value::Kind::Data: {
      const Value::Bytes &bytes = *value.asData();
      return [NSData dataWithBytes:bytes.data() length:bytes.size()];
    }
    case Value::Kind::Date:
      return [NSDate dateWithTimeIntervalSinceReferenceDate:*value.asDate()];
    case Value::Kind::Array: {
      NSMutableArray *array = [NSMutableArray array];
      for (const Value &item : *value.asArray()) [array addObject:objectFromPlistValue(item)];
      return array;
    }
    case Value::Kind::Dictionary: {
      NSMutableDictionary *dictionary = [NSMutableDictionary dictionary];
      for (const Value::Entry &entry : *value.asDictionary()) {
        [dictionary setObject:objectFromPlistValue(entry.second) forKey:stringFromUTF8(entry.first)];
      }
      return dictionary;
    }
  }
  return nil;
}

std::optional<Value> plistValueFromObject(id object) { return valueFromObject(object, 0); }
