// CoreFoundation over Foundation: CF references are the bridged Foundation objects.

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>

#include <string.h>

// The constants are const for callers; this file fills them in at load time.
extern "C" const void *simBooleanTrue __asm__("kCFBooleanTrue");
extern "C" const void *simBooleanFalse __asm__("kCFBooleanFalse");

const CFAllocatorRef kCFAllocatorDefault = NULL;
const CFAllocatorRef kCFAllocatorSystemDefault = NULL;
const CFAllocatorRef kCFAllocatorNull = NULL;
const CFTimeInterval kCFAbsoluteTimeIntervalSince1970 = 978307200.0;
const CFStringRef kCFRunLoopDefaultMode = (CFStringRef) @"kCFRunLoopDefaultMode";
const CFStringRef kCFRunLoopCommonModes = (CFStringRef) @"kCFRunLoopCommonModes";

@interface SimCoreFoundationLoader : NSObject
@end

@implementation SimCoreFoundationLoader
+ (void)load {
  simBooleanTrue = [[NSNumber numberWithBool:YES] retain];
  simBooleanFalse = [[NSNumber numberWithBool:NO] retain];
}
@end

CFTypeRef CFRetain(CFTypeRef cf) {
  if (cf != NULL) [(id)cf retain];
  return cf;
}

void CFRelease(CFTypeRef cf) {
  if (cf != NULL) [(id)cf release];
}

CFTypeRef CFAutorelease(CFTypeRef cf) {
  if (cf != NULL) [(id)cf autorelease];
  return cf;
}

CFIndex CFGetRetainCount(CFTypeRef cf) { return cf ? (CFIndex)[(id)cf retainCount] : 0; }

Boolean CFEqual(CFTypeRef cf1, CFTypeRef cf2) {
  if (cf1 == cf2) return true;
  if (cf1 == NULL || cf2 == NULL) return false;
  return [(id)cf1 isEqual:(id)cf2] ? true : false;
}

CFHashCode CFHash(CFTypeRef cf) { return cf ? (CFHashCode)[(id)cf hash] : 0; }

enum : CFTypeID {
  kSimUnknownTypeID = 1,
  kSimStringTypeID = 7,
  kSimDictionaryTypeID = 18,
  kSimArrayTypeID = 19,
  kSimDataTypeID = 20,
  kSimBooleanTypeID = 21,
  kSimNumberTypeID = 22,
  kSimDateTypeID = 42,
};

static bool isBoolean(id obj) {
  if (![obj isKindOfClass:[NSNumber class]]) return false;
  const char *type = [obj objCType];
  return type != NULL && (strcmp(type, @encode(BOOL)) == 0 || strcmp(type, "B") == 0);
}

CFTypeID CFGetTypeID(CFTypeRef cf) {
  id obj = (id)cf;
  if (obj == nil) return kSimUnknownTypeID;
  if ([obj isKindOfClass:[NSString class]]) return kSimStringTypeID;
  if ([obj isKindOfClass:[NSDictionary class]]) return kSimDictionaryTypeID;
  if ([obj isKindOfClass:[NSArray class]]) return kSimArrayTypeID;
  if ([obj isKindOfClass:[NSData class]]) return kSimDataTypeID;
  if ([obj isKindOfClass:[NSDate class]]) return kSimDateTypeID;
  if (isBoolean(obj)) return kSimBooleanTypeID;
  if ([obj isKindOfClass:[NSNumber class]]) return kSimNumberTypeID;
  return kSimUnknownTypeID;
}

CFTypeID CFStringGetTypeID(void) { return kSimStringTypeID; }
CFTypeID CFArrayGetTypeID(void) { return kSimArrayTypeID; }
CFTypeID CFDictionaryGetTypeID(void) { return kSimDictionaryTypeID; }
CFTypeID CFNumberGetTypeID(void) { return kSimNumberTypeID; }
CFTypeID CFBooleanGetTypeID(void) { return kSimBooleanTypeID; }
CFTypeID CFDataGetTypeID(void) { return kSimDataTypeID; }
CFTypeID CFDateGetTypeID(void) { return kSimDateTypeID; }

// MARK: - Strings

static NSStringEncoding foundationEncoding(CFStringEncoding encoding) {
  switch (encoding) {
    case kCFStringEncodingASCII:
      return NSASCIIStringEncoding;
    case kCFStringEncodingUTF8:
      return NSUTF8StringEncoding;
    case kCFStringEncodingISOLatin1:
      return NSISOLatin1StringEncoding;
    case kCFStringEncodingWindowsLatin1:
      return NSWindowsCP1252StringEncoding;
    case kCFStringEncodingMacRoman:
      return NSMacOSRomanStringEncoding;
    case kCFStringEncodingNonLossyASCII:
      return NSNonLossyASCIIStringEncoding;
    default:
      return (NSStringEncoding)0;
  }
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef alloc, const char *cStr, CFStringEncoding encoding) {
  NSStringEncoding enc = foundationEncoding(encoding);
  if (cStr == NULL || enc == 0) return NULL;
  if (enc == NSASCIIStringEncoding) {
    for (const unsigned char *p = (const unsigned char *)cStr; *p; p++)
      if (*p > 0x7f) return NULL;
  }
  return (CFStringRef)[[NSString alloc] initWithBytes:cStr length:strlen(cStr) encoding:enc];
}

CFStringRef __CFStringMakeConstantString(const char *cStr) {
  // Interned for the life of the process, as constant strings are.
  static NSMutableDictionary *table;
  static NSLock *lock;
  static dispatch_once_t once;
  dispatch_once(&once, ^{
    table = [[NSMutableDictionary alloc] init];
    lock = [[NSLock alloc] init];
  });
  NSString *key = [NSString stringWithUTF8String:cStr ? cStr : ""];
  [lock lock];
  NSString *value = [table objectForKey:key];
  if (value == nil) {
    value = key;
    [table setObject:value forKey:key];
  }
  [lock unlock];
  return (CFStringRef)value;
}

CFStringRef CFStringCreateCopy(CFAllocatorRef alloc, CFStringRef theString) {
  return theString ? (CFStringRef)[(NSString *)theString copy] : NULL;
}

CFIndex CFStringGetLength(CFStringRef theString) { return theString ? (CFIndex)[(NSString *)theString length] : 0; }

Boolean CFStringGetCString(CFStringRef theString, char *buffer, CFIndex bufferSize, CFStringEncoding encoding) {
  NSStringEncoding enc = foundationEncoding(encoding);
  if (theString == NULL || buffer == NULL || bufferSize <= 0 || enc == 0) return false;
  NSData *data = [(NSString *)theString dataUsingEncoding:enc allowLossyConversion:NO];
  if (data == nil || (CFIndex)[data length] >= bufferSize) return false;
  memcpy(buffer, [data bytes], [data length]);
  buffer[[data length]] = '\0';
  return true;
}

const char *CFStringGetCStringPtr(CFStringRef theString, CFStringEncoding encoding) {
  // Allowed to answer NULL; callers then use CFStringGetCString.
  return NULL;
}

CFComparisonResult CFStringCompare(CFStringRef a, CFStringRef b, CFOptionFlags options) {
  NSStringCompareOptions opts = (options & 1) ? NSCaseInsensitiveSearch : 0;
  return (CFComparisonResult)[(NSString *)a compare:(NSString *)b options:opts];
}

// MARK: - Collections

CFIndex CFArrayGetCount(CFArrayRef theArray) { return theArray ? (CFIndex)[(NSArray *)theArray count] : 0; }

const void *CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx) {
  NSArray *array = (NSArray *)theArray;
  if (array == nil || idx < 0 || (NSUInteger)idx >= [array count]) return NULL;
  return [array objectAtIndex:(NSUInteger)idx];
}

const void *CFDictionaryGetValue(CFDictionaryRef theDict, const void *key) {
  if (theDict == NULL || key == NULL) return NULL;
  return [(NSDictionary *)theDict objectForKey:(id)key];
}

CFIndex CFDictionaryGetCount(CFDictionaryRef theDict) { return theDict ? (CFIndex)[(NSDictionary *)theDict count] : 0; }

Boolean CFDictionaryContainsKey(CFDictionaryRef theDict, const void *key) {
  return CFDictionaryGetValue(theDict, key) != NULL;
}

void CFDictionarySetValue(CFMutableDictionaryRef theDict, const void *key, const void *value) {
  if (theDict == NULL || key == NULL) return;
  if (value == NULL)
    [(NSMutableDictionary *)theDict removeObjectForKey:(id)key];
  else
    [(NSMutableDictionary *)theDict setObject:(id)value forKey:(id)key];
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
  return boolean ? ([(NSNumber *)boolean boolValue] ? true : false) : false;
}

// MARK: - Time

CFAbsoluteTime CFAbsoluteTimeGetCurrent(void) { return [NSDate timeIntervalSinceReferenceDate]; }

CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef theDate) {
  return theDate ? [(NSDate *)theDate timeIntervalSinceReferenceDate] : 0;
}

CFDateRef CFDateCreate(CFAllocatorRef allocator, CFAbsoluteTime at) {
  return (CFDateRef)[[NSDate alloc] initWithTimeIntervalSinceReferenceDate:at];
}

// MARK: - Run loops

CFRunLoopRef CFRunLoopGetMain(void) { return (CFRunLoopRef)[NSRunLoop mainRunLoop]; }

CFRunLoopRef CFRunLoopGetCurrent(void) { return (CFRunLoopRef)[NSRunLoop currentRunLoop]; }
