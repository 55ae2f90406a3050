// Application bundles on the simulated device, opened with +[NSBundle bundleWithPath:] and
// read the way iOS reads them:
// - flat: the Info.plist and the .lproj folders sit at the top of the bundle (GNUstep looks
//   for Info-gnustep.plist and a Resources folder first);
// - one bundle per path (GNUstep hands out the bundle of an identifier it has already met,
//   even when it was found at another path, so an application installed twice reads as one);
// - the Info.plist read once, when first asked for, and nothing else at creation;
// - resources and string tables searched globally first, then in the .lproj iOS chooses for the
//   user's languages, then in the development region's (see SimLocalization.mm).
// Bundles outside the device, or not ending in ".app", stay GNUstep's.
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <objc/runtime.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#import "Simulator/SimInternal.h"

@interface SimApplicationBundle : NSBundle {
  NSString *_hostPath;
  NSDictionary *_info;
  NSMutableDictionary *_tables;
}
@property (nonatomic, copy) NSString *hostPath;
@property (nonatomic, retain) NSDictionary *info;
@property (nonatomic, retain) NSMutableDictionary *tables;
- (instancetype)initWithHostPath:(NSString *)path;
@end

namespace {

std::mutex gBundlesLock;
std::map<std::string, SimApplicationBundle *> gBundles;  // live bundles by path, not retained

typedef id (*BundleWithPathIMP)(id, SEL, NSString *);
BundleWithPathIMP gPlatformBundleWithPath;

bool isDirectory(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool exists(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0;
}

NSString *withoutTrailingSlashes(NSString *path) {
  while ([path length] > 1 && [path hasSuffix:@"/"]) path = [path substringToIndex:[path length] - 1];
  return path;
}

// An absolute host path inside the device in use, naming an application bundle.
bool isDeviceApplication(NSString *path, const std::string &host) {
  const char *root = SimDeviceRoot();
  if (root == NULL || ![[path pathExtension] isEqualToString:@"app"]) return false;
  const size_t length = strlen(root);
  return host.compare(0, length, root) == 0 && host.size() > length && host[length] == '/' && isDirectory(host);
}

SimApplicationBundle *applicationBundle(NSString *path, const std::string &key) {
  {
    std::lock_guard<std::mutex> hold(gBundlesLock);
    auto found = gBundles.find(key);
    if (found != gBundles.end()) return [[found->second retain] autorelease];
  }
  SimApplicationBundle *bundle = [[SimApplicationBundle alloc] initWithHostPath:path];
  std::lock_guard<std::mutex> hold(gBundlesLock);
  gBundles[key] = bundle;
  return [bundle autorelease];
}

std::string utf8(NSString *text) {
  const char *bytes = [text isKindOfClass:[NSString class]] ? [text UTF8String] : NULL;
  return bytes ? bytes : "";
}

id simBundleWithPath(id self, SEL _cmd, NSString *path) {
  if (self == (id)objc_getClass("NSBundle") && [path isKindOfClass:[NSString class]]) {
    NSString *bundle = withoutTrailingSlashes(path);
    const std::string host = utf8(bundle);
    if (isDeviceApplication(bundle, host)) return applicationBundle(bundle, host);
  }
  return gPlatformBundleWithPath(self, _cmd, path);
}

// The folders searched for a resource of the bundle at `top`, in order: the bundle's top, the
// .lproj of the user's language, the development region's.
std::vector<std::string> searchFolders(NSString *top, NSString *developmentRegion) {
  std::vector<std::string> folders;
  for (NSString *folder in SimLocalizationSearchFolders(top, developmentRegion)) folders.push_back(utf8(folder));
  return folders;
}

// The property list in `data`, or nil. CFBundle reads a bundle's plists with
// CFPropertyListCreateWithData, which answers NULL for bytes it cannot read; GNUstep's
// reader raises for some (a binary plist cut short), so a raise counts as nothing read.
id readPropertyList(NSData *data) {
  if (data == nil) return nil;
  @try {
    return [NSPropertyListSerialization propertyListWithData:data options:0 format:NULL error:NULL];
  } @catch (NSException *) {
    return nil;
  }
}

}  // namespace

@implementation SimApplicationBundle

@synthesize hostPath = _hostPath;
@synthesize info = _info;
@synthesize tables = _tables;

- (instancetype)initWithHostPath:(NSString *)path {
  // NSBundle's own initialiser is GNUstep's bundle search; NSObject's init is all it needs.
  if ((self = [super init])) {
    _hostPath = [path copy];
    _tables = [[NSMutableDictionary alloc] init];
  }
  return self;
}

- (void)dealloc {
  {
    std::lock_guard<std::mutex> hold(gBundlesLock);
    auto found = gBundles.find(utf8(_hostPath));
    if (found != gBundles.end() && found->second == self) gBundles.erase(found);
  }
  [_hostPath release];
  [_info release];
  [_tables release];
  [super dealloc];
}

- (NSString *)description {
  return [NSString stringWithFormat:@"NSBundle <%@> (not yet loaded)", _hostPath];
}

#pragma mark - Place and code (none is loaded)

- (NSString *)bundlePath {
  return _hostPath;
}
- (NSString *)resourcePath {
  return _hostPath;
}
- (NSURL *)bundleURL {
  return [NSURL fileURLWithPath:_hostPath];
}
- (NSURL *)resourceURL {
  return [self bundleURL];
}
- (BOOL)isLoaded {
  return NO;
}
- (BOOL)load {
  return NO;
}
- (Class)principalClass {
  return Nil;
}
- (Class)classNamed:(NSString *)className {
  return Nil;
}

#pragma mark - Info.plist

- (NSDictionary *)infoDictionary {
  if (_info == nil) {
    NSData *data = [NSData dataWithContentsOfFile:[_hostPath stringByAppendingPathComponent:@"Info.plist"]];
    id info = readPropertyList(data);
    self.info = [info isKindOfClass:[NSDictionary class]] ? info : [NSDictionary dictionary];
  }
  return _info;
}

- (NSString *)bundleIdentifier {
  id identifier = [[self infoDictionary] objectForKey:@"CFBundleIdentifier"];
  return [identifier isKindOfClass:[NSString class]] ? identifier : nil;
}

- (NSString *)executablePath {
  id executable = [[self infoDictionary] objectForKey:@"CFBundleExecutable"];
  return [executable isKindOfClass:[NSString class]] ? [_hostPath stringByAppendingPathComponent:executable] : nil;
}

- (NSString *)developmentLocalization {
  id region = [[self infoDictionary] objectForKey:@"CFBundleDevelopmentRegion"];
  return [region isKindOfClass:[NSString class]] ? region : @"en";
}

#pragma mark - Localisations and resources

- (NSArray *)localizations {
  return SimBundleLocalizations(_hostPath);
}

- (NSArray *)preferredLocalizations {
  NSString *best = SimBestLocalization([self localizations], SimUserLanguages(), [self developmentLocalization]);
  return best ? [NSArray arrayWithObject:best] : [NSArray array];
}

- (NSString *)pathForResource:(NSString *)name ofType:(NSString *)extension inDirectory:(NSString *)subpath {
  if ([name length] == 0) return nil;
  std::string file = utf8(name);
  if ([extension length]) file += "." + utf8(extension);
  if ([subpath length]) file = utf8(subpath) + "/" + file;
  for (const std::string &folder : searchFolders(_hostPath, [self developmentLocalization])) {
    const std::string path = folder + "/" + file;
    if (exists(path)) return [NSString stringWithUTF8String:path.c_str()];
  }
  return nil;
}

- (NSString *)pathForResource:(NSString *)name ofType:(NSString *)extension {
  return [self pathForResource:name ofType:extension inDirectory:nil];
}

- (NSURL *)URLForResource:(NSString *)name withExtension:(NSString *)extension {
  NSString *path = [self pathForResource:name ofType:extension];
  return path ? [NSURL fileURLWithPath:path] : nil;
}

#pragma mark - Strings tables

- (NSDictionary *)stringsTableNamed:(NSString *)table {
  id cached = [_tables objectForKey:table];
  if (cached == nil) {
    NSString *path = [self pathForResource:table ofType:@"strings"];
    cached = (path ? SimReadStringsTable(path) : nil) ?: [NSNull null];
    [_tables setObject:cached forKey:table];
  }
  return [cached isKindOfClass:[NSDictionary class]] ? cached : nil;
}

- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)table {
  if (key == nil) return value ?: @"";
  id found = [[self stringsTableNamed:[table length] ? table : @"Localizable"] objectForKey:key];
  if ([found isKindOfClass:[NSString class]]) return found;
  return [value length] ? value : key;
}

- (NSDictionary *)localizedInfoDictionary {
  NSDictionary *strings = [self stringsTableNamed:@"InfoPlist"];
  if (strings == nil) return [self infoDictionary];
  NSMutableDictionary *localized = [NSMutableDictionary dictionaryWithDictionary:[self infoDictionary]];
  [localized addEntriesFromDictionary:strings];
  return localized;
}

- (id)objectForInfoDictionaryKey:(NSString *)key {
  id localized = [[self stringsTableNamed:@"InfoPlist"] objectForKey:key];
  return localized ?: [[self infoDictionary] objectForKey:key];
}

@end

// Installed when the platform library loads. Names are looked up through the runtime's C
// functions: this module's selectors may not be fixed up yet.
@interface SimApplicationBundlesLoader : NSObject
@end

@implementation SimApplicationBundlesLoader
+ (void)load {
  Class bundle = (Class)objc_getClass("NSBundle");
  Method method = bundle ? class_getClassMethod(bundle, sel_registerName("bundleWithPath:")) : NULL;
  if (method != NULL)
    gPlatformBundleWithPath = (BundleWithPathIMP)method_setImplementation(method, (IMP)simBundleWithPath);
}
@end
