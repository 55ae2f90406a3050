#import "SimulatedSpringBoard.h"
#include <notify.h>
#include <optional>
#include <string>
#include <vector>
#include "core/Names.hpp"
#include "wifi/WiFiNetworks.hpp"

namespace {

NSDictionary *dictionaryOrEmpty(id object) {
  return [object isKindOfClass:[NSDictionary class]] ? object : [NSDictionary dictionary];
}

NSArray *arrayOrEmpty(id object) { return [object isKindOfClass:[NSArray class]] ? object : [NSArray array]; }

std::optional<std::string> text(id object) {
  if (![object isKindOfClass:[NSString class]]) return std::nullopt;
  const char *utf8 = [(NSString *)object UTF8String];
  return utf8 ? std::optional<std::string>(utf8) : std::nullopt;
}

}  // namespace

@implementation SimulatedSpringBoard

- (instancetype)initWithProfile:(NSDictionary *)profile {
  if ((self = [super init])) {
    _profile = [dictionaryOrEmpty(profile) copy];
    id shows = [[self springBoardFacts] objectForKey:@"showsInLockScreen"];
    _showsInLockScreen = [shows respondsToSelector:@selector(boolValue)] ? [shows boolValue] : YES;
  }
  return self;
}

// The lock-screen call setting is SpringBoard's own, kept in its preferences on the
// device, so it outlives a restart of SpringBoard; the profile gives its first value.
- (BOOL)showsCallsInLockScreen {
  CFStringRef domain = CFSTR("com.apple.springboard");
  CFPreferencesAppSynchronize(domain);
  CFPropertyListRef stored = CFPreferencesCopyAppValue(CFSTR("showsInLockScreen"), domain);
  BOOL shows = _showsInLockScreen;
  if (stored != NULL) {
    id value = (id)stored;
    if ([value respondsToSelector:@selector(boolValue)]) shows = [value boolValue];
    CFRelease(stored);
  }
  return shows;
}

- (void)setShowsCallsInLockScreen:(BOOL)shows {
  _showsInLockScreen = shows;
  CFStringRef domain = CFSTR("com.apple.springboard");
  CFPreferencesAppSynchronize(domain);
  CFPreferencesSetAppValue(CFSTR("showsInLockScreen"), shows ? kCFBooleanTrue : kCFBooleanFalse, domain);
  CFPreferencesAppSynchronize(domain);
}

- (void)dealloc {
  [_profile release];
  [super dealloc];
}

- (NSDictionary *)springBoardFacts {
  return dictionaryOrEmpty([_profile objectForKey:@"springboard"]);
}

// A library that stops answering after a number of "dlbv" replies simulates a
// SpringBoard that goes away while Settings is open.
- (NSDictionary *)libraryVersionReply {
  NSDictionary *facts = [self springBoardFacts];
  id limit = [facts objectForKey:@"libraryVersionReplies"];
  if ([limit respondsToSelector:@selector(unsignedIntegerValue)] &&
      _libraryVersionReplies >= [limit unsignedIntegerValue]) {
    return [NSDictionary dictionary];
  }
  _libraryVersionReplies++;
  id version = [facts objectForKey:@"libraryVersion"];
  unsigned long long value =
      [version respondsToSelector:@selector(unsignedLongLongValue)] ? [version unsignedLongLongValue] : 0;
  return [NSDictionary dictionaryWithObject:[NSNumber numberWithUnsignedLongLong:value] forKey:@"dlbv"];
}

// The device's joined networks as the Wi-Fi manager lists them: most recently
// joined first, nameless ones left out, an unknown BSSID as "ff:ff:ff:ff:ff:ff".
- (NSArray *)knownNetworks {
  std::vector<tessarin::wifi::PlatformNetwork> known;
  for (id network in arrayOrEmpty([dictionaryOrEmpty([_profile objectForKey:@"wifi"]) objectForKey:@"networks"])) {
    NSDictionary *facts = dictionaryOrEmpty(network);
    tessarin::wifi::PlatformNetwork platform;
    platform.ssid = text([facts objectForKey:@"ssid"]);
    platform.bssid = text([facts objectForKey:@"bssid"]);
    platform.password = text([facts objectForKey:@"password"]);
    id joined = [facts objectForKey:@"lastJoined"];
    if ([joined isKindOfClass:[NSDate class]]) platform.lastJoined = [(NSDate *)joined timeIntervalSinceReferenceDate];
    known.push_back(std::move(platform));
  }
  NSMutableArray *records = [NSMutableArray array];
  for (const tessarin::wifi::NetworkRecord &network : tessarin::wifi::networkRecords(std::move(known))) {
    NSMutableDictionary *record = [NSMutableDictionary dictionary];
    [record setObject:@(network.ssid.c_str()) forKey:@"ssid"];
    [record setObject:@(network.bssid.c_str()) forKey:@"bssid"];
    if (network.password) [record setObject:@(network.password->c_str()) forKey:@"password"];
    [records addObject:record];
  }
  return records;
}

// The bundle identifiers of the applications offered for protection, in the
// profile's order (entries are application facts or plain identifiers).
- (NSArray *)applicationIdentifiers {
  NSMutableArray *identifiers = [NSMutableArray array];
  for (id app in arrayOrEmpty([_profile objectForKey:@"apps"])) {
    id identifier = [app isKindOfClass:[NSDictionary class]] ? [app objectForKey:@"bundleIdentifier"] : app;
    if ([identifier isKindOfClass:[NSString class]] && [identifier length]) [identifiers addObject:identifier];
  }
  return identifiers;
}

- (NSDictionary *)replyToMessage:(NSString *)identifier userInfo:(NSDictionary *)userInfo {
  using namespace tessarin::message;
  if ([identifier isEqualToString:@(kLibraryVersion)]) return [self libraryVersionReply];
  if ([identifier isEqualToString:@(kBiometricsEnrolled)]) {
    BOOL enrolled = [[_profile objectForKey:@"biometricsEnrolled"] boolValue];
    return [NSDictionary dictionaryWithObject:[NSNumber numberWithInt:enrolled ? 1 : 0] forKey:@"idsn"];
  }
  if ([identifier isEqualToString:@(kApplications)]) {
    return [NSDictionary dictionaryWithObject:[self applicationIdentifiers] forKey:@"apps"];
  }
  if ([identifier isEqualToString:@(kFolders)]) {
    return [NSDictionary dictionaryWithObject:arrayOrEmpty([_profile objectForKey:@"folders"])
                                       forKey:@"foldersRepresentation"];
  }
  if ([identifier isEqualToString:@(kWiFiNetworks)]) {
    return [NSDictionary dictionaryWithObject:[self knownNetworks] forKey:@"networks"];
  }
  if ([identifier isEqualToString:@(kGetCallerIDVisibility)]) {
    return [NSDictionary dictionaryWithObject:[NSNumber numberWithBool:[self showsCallsInLockScreen]]
                                       forKey:@"showsInLockScreen"];
  }
  if ([identifier isEqualToString:@(kSetCallerIDVisibility)]) {
    id shows = [userInfo objectForKey:@"showsInLockScreen"];
    if ([shows respondsToSelector:@selector(boolValue)]) [self setShowsCallsInLockScreen:[shows boolValue]];
    return nil;
  }
  if ([identifier isEqualToString:@(kPasscodeResetRequest)]) {
    // The real half asks the user to authenticate first; the simulated user always passes.
    notify_post(tessarin::kPasscodeResetNotification);
    return nil;
  }
  return nil;
}

@end
