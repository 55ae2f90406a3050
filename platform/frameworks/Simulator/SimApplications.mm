// Installed applications: bundle folders where iOS and the jailbreak keep them, each
// with its Info.plist and string tables, as the profile or a test describes them.
#import <Foundation/Foundation.h>
#include <Simulator/SimApplications.h>
#import "Simulator/SimInternal.h"

namespace {

NSString *sourceFolder(NSString *source, NSDictionary *profile) {
  if ([source isEqual:@"Applications"]) return @"/Applications";
  if ([source isEqual:@"LegacyContainers"]) return @"/private/var/mobile/Applications";
  if ([source isEqual:@"Binpack"]) return @"/private/var/binpack/Applications";
  if ([source isEqual:@"Containers"]) {
    BOOL legacy = [[profile objectForKey:@"legacyContainerRoot"] respondsToSelector:@selector(boolValue)] &&
                  [[profile objectForKey:@"legacyContainerRoot"] boolValue];
    return legacy ? @"/var/mobile/Containers/Bundle/Application" : @"/var/containers/Bundle/Application";
  }
  return nil;
}

// A container name as iOS makes them: an upper-case UUID, here derived from the bundle.
NSString *containerName(NSString *bundle, NSDictionary *entry) {
  unsigned long long h = 1469598103934665603ULL;
  NSString *seed = [NSString stringWithFormat:@"%@|%@", bundle, [[entry objectForKey:@"info"] description]];
  const char *utf8 = [seed UTF8String];
  for (const char *p = utf8 ? utf8 : ""; *p; p++) h = (h ^ (unsigned char)*p) * 1099511628211ULL;
  return [NSString stringWithFormat:@"%08llX-%04llX-%04llX-%04llX-%012llX", h >> 32, (h >> 16) & 0xFFFF, h & 0xFFFF,
                                    (h >> 48) & 0xFFFF, (h * 31) & 0xFFFFFFFFFFFFULL];
}

NSString *quoted(NSString *s) {
  NSString *text = [s isKindOfClass:[NSString class]] ? s : [s description];
  text = [text stringByReplacingOccurrencesOfString:@"\\" withString:@"\\\\"];
  text = [text stringByReplacingOccurrencesOfString:@"\"" withString:@"\\\""];
  return [NSString stringWithFormat:@"\"%@\"", text];
}

BOOL writeStringsTable(NSString *path, NSDictionary *table) {
  NSMutableString *text = [NSMutableString string];
  for (id key in [[table allKeys] sortedArrayUsingSelector:@selector(compare:)])
    [text appendFormat:@"%@ = %@;\n", quoted(key), quoted([table objectForKey:key])];
  return SimMakeDirectories([path stringByDeletingLastPathComponent]) &&
         [[text dataUsingEncoding:NSUTF8StringEncoding] writeToFile:path atomically:YES];
}

NSString *install(NSString *rootPath, NSDictionary *entry, NSDictionary *profile) {
  if (![entry isKindOfClass:[NSDictionary class]]) return nil;
  NSString *folder = sourceFolder([entry objectForKey:@"source"], profile);
  NSString *bundle = [entry objectForKey:@"bundle"];
  if (folder == nil || ![bundle isKindOfClass:[NSString class]] || [bundle length] == 0) return nil;
  NSString *devicePath = folder;
  NSString *source = [entry objectForKey:@"source"];
  if ([source isEqual:@"LegacyContainers"] || [source isEqual:@"Containers"]) {
    NSString *container = [entry objectForKey:@"container"];
    if (![container isKindOfClass:[NSString class]]) container = containerName(bundle, entry);
    devicePath = [devicePath stringByAppendingPathComponent:container];
  }
  devicePath = [devicePath stringByAppendingPathComponent:bundle];
  NSString *hostPath = [rootPath stringByAppendingString:devicePath];
  if (!SimMakeDirectories(hostPath)) return nil;
  NSDictionary *info = [entry objectForKey:@"info"];
  if ([info isKindOfClass:[NSDictionary class]]) {
    NSData *data = [NSPropertyListSerialization dataWithPropertyList:info
                                                              format:NSPropertyListXMLFormat_v1_0
                                                             options:0
                                                               error:NULL];
    if (![data writeToFile:[hostPath stringByAppendingPathComponent:@"Info.plist"] atomically:YES]) return nil;
  }
  NSDictionary *strings = [entry objectForKey:@"strings"];
  if ([strings isKindOfClass:[NSDictionary class]]) {
    for (NSString *language in strings) {
      NSDictionary *table = [strings objectForKey:language];
      if (![language isKindOfClass:[NSString class]] || ![table isKindOfClass:[NSDictionary class]]) continue;
      NSString *path =
          [hostPath stringByAppendingPathComponent:[NSString stringWithFormat:@"%@.lproj/InfoPlist.strings", language]];
      if (!writeStringsTable(path, table)) return nil;
    }
  }
  return devicePath;
}

}  // namespace

extern "C" NSString *SimInstallApplication(const char *root, NSDictionary *entry) {
  if (root == NULL) root = SimDeviceRoot();
  if (root == NULL || root[0] != '/') return nil;
  NSString *rootPath = [NSString stringWithUTF8String:root];
  NSDictionary *profile = nil;
  if (SimDeviceRoot() != NULL && strcmp(SimDeviceRoot(), root) == 0) profile = SimDeviceProfile();
  return install(rootPath, entry, profile);
}

extern "C" int SimInstallProfileApplications(const char *root, NSDictionary *profile) {
  if (root == NULL || root[0] != '/') return -1;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *rootPath = [NSString stringWithUTF8String:root];
  NSArray *entries = [profile objectForKey:@"installedApplications"];
  int result = 0;
  if ([entries isKindOfClass:[NSArray class]]) {
    for (id entry in entries)
      if (install(rootPath, entry, profile) == nil) result = -1;
  }
  [pool release];
  return result;
}
