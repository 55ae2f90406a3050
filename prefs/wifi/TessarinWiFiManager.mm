#import "wifi/TessarinWiFiManager.h"
#import "core/PlatformAPI.h"
#include "core/Names.hpp"
#include "wifi/WiFiNetworks.hpp"

namespace wifi = tessarin::wifi;

typedef CFArrayRef (*CopyNetworksFunction)(void *manager);
// Also used by the trusted networks page.
CopyNetworksFunction xWiFiManagerClientCopyNetworks = NULL;

namespace {

typedef void (*ScheduleFunction)(void *manager, void *runLoop, CFStringRef mode);
typedef CFTypeRef (*GetPropertyFunction)(void *network, CFStringRef property);
typedef CFStringRef (*CopyPasswordFunction)(void *network);
typedef void *(*CopyCurrentNetworkFunction)(void *device);
typedef void *(*CreateFunction)(CFAllocatorRef allocator, int flags);
typedef CFArrayRef (*CopyDevicesFunction)(void *manager);
typedef CFDictionaryRef (*CopyRecordFunction)(void *network);

TessarinWiFiManager *sharedwifi = nil;
ScheduleFunction xWiFiManagerClientScheduleWithRunLoop = NULL;
GetPropertyFunction __mWiFiNetworkGetProperty = NULL;
CopyPasswordFunction __mWiFiNetworkCopyPassword = NULL;
CopyCurrentNetworkFunction xWiFiDeviceClientCopyCurrentNetwork = NULL;
CreateFunction xWiFiManagerClientCreate = NULL;
CopyDevicesFunction xWiFiManagerClientCopyDevices = NULL;

NSString *stringOrNil(id object) {
  return [object isKindOfClass:[NSString class]] ? object : nil;
}

std::optional<std::string> text(NSString *string) {
  if (string == nil) return std::nullopt;
  const char *utf8 = [string UTF8String];
  return utf8 ? std::optional<std::string>(utf8) : std::nullopt;
}

NSArray *arrayFromCopy(CFArrayRef copied) {
  if (copied == NULL) return [NSArray array];
  NSArray *array = [NSArray arrayWithArray:(NSArray *)copied];
  CFRelease(copied);
  return array;
}

}  // namespace

@implementation TessarinWiFiManager

+ (instancetype)sharedInstance {
  if (sharedwifi == nil) sharedwifi = [[self alloc] init];  // init also stores itself there
  return sharedwifi;
}

- (instancetype)init {
  if (!(self = [super init])) return nil;
  sharedwifi = self;
  xWiFiManagerClientScheduleWithRunLoop = (ScheduleFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientScheduleWithRunLoop");
  __mWiFiNetworkGetProperty = (GetPropertyFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkGetProperty");
  __mWiFiNetworkCopyPassword = (CopyPasswordFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkCopyPassword");
  xWiFiDeviceClientCopyCurrentNetwork = (CopyCurrentNetworkFunction)dlsym(RTLD_DEFAULT, "WiFiDeviceClientCopyCurrentNetwork");
  xWiFiManagerClientCreate = (CreateFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCreate");
  xWiFiManagerClientCopyDevices = (CopyDevicesFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyDevices");
  xWiFiManagerClientCopyNetworks = (CopyNetworksFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyNetworks");
  // Without the library there is no client: no devices, no networks, no current network.
  if (xWiFiManagerClientCreate != NULL) WifiManager = xWiFiManagerClientCreate(kCFAllocatorDefault, 1);
  return self;
}

- (NSArray *)devices {
  if (WifiManager == NULL || xWiFiManagerClientCopyDevices == NULL) return [NSArray array];
  return arrayFromCopy(xWiFiManagerClientCopyDevices(WifiManager));
}

- (NSArray *)networks {
  if (WifiManager == NULL || xWiFiManagerClientCopyNetworks == NULL) return [NSArray array];
  return arrayFromCopy(xWiFiManagerClientCopyNetworks(WifiManager));
}

- (void *)currentNetwork {
  NSArray *devices = [self devices];
  if ([devices count] == 0 || xWiFiDeviceClientCopyCurrentNetwork == NULL) return NULL;
  return xWiFiDeviceClientCopyCurrentNetwork((void *)[devices objectAtIndex:0]);
}

- (NSString *)ssidForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkGetProperty == NULL) return nil;
  return stringOrNil((id)__mWiFiNetworkGetProperty(network, (CFStringRef)@"SSID_STR"));
}

- (NSString *)bssidForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkGetProperty == NULL) return nil;
  return stringOrNil((id)__mWiFiNetworkGetProperty(network, (CFStringRef)@"BSSID"));
}

- (NSString *)passwordForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkCopyPassword == NULL) return nil;
  CFStringRef password = __mWiFiNetworkCopyPassword(network);
  if (password == NULL) return nil;
  NSString *copy = [NSString stringWithString:(NSString *)password];
  CFRelease(password);
  return copy;
}

- (BOOL)isOnTrustedNetwork {
  CFStringRef domain = (CFStringRef)@(tessarin::kDomain);
  CFPreferencesAppSynchronize(domain);
  id stored = [(id)CFPreferencesCopyAppValue((CFStringRef)@"allowedWiFis", domain) autorelease];
  std::vector<wifi::TrustedEntry> trusted;
  if ([stored isKindOfClass:[NSArray class]]) {
    for (id entry in (NSArray *)stored) {
      if (![entry isKindOfClass:[NSDictionary class]]) {
        trusted.push_back({});
        continue;
      }
      trusted.push_back({text(stringOrNil([entry objectForKey:@"bssid"])), text(stringOrNil([entry objectForKey:@"ssid"]))});
    }
  }
  return wifi::isTrusted(trusted, [self] { return text([self bssidForNetwork:[self currentNetwork]]); });
}

- (NSMutableArray *)networksArrayAsDictionaries {
  NSMutableArray *result = [NSMutableArray array];
  NSArray *networks = [self networks];
  CopyRecordFunction copyRecord = (CopyRecordFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkCopyRecord");

  std::vector<wifi::PlatformNetwork> known;
  for (id network in networks) {
    wifi::PlatformNetwork facts;
    if (copyRecord != NULL) {
      NSDictionary *record = [(NSDictionary *)copyRecord((void *)network) autorelease];
      if ([record isKindOfClass:[NSDictionary class]]) {
        facts.ssid = text(stringOrNil([record objectForKey:@"SSID_STR"]));
        id joined = [record objectForKey:@"lastJoined"];
        if ([joined isKindOfClass:[NSDate class]]) facts.lastJoined = [(NSDate *)joined timeIntervalSinceReferenceDate];
      }
    }
    facts.bssid = text([self bssidForNetwork:(void *)network]);
    facts.password = text([self passwordForNetwork:(void *)network]);
    known.push_back(std::move(facts));
  }

  for (const wifi::NetworkRecord &record : wifi::networkRecords(std::move(known))) {
    NSMutableDictionary *entry = [NSMutableDictionary dictionary];
    [entry setObject:@(record.ssid.c_str()) forKey:@"ssid"];
    [entry setObject:@(record.bssid.c_str()) forKey:@"bssid"];
    if (record.password) [entry setObject:@(record.password->c_str()) forKey:@"password"];
    [result addObject:entry];
  }
  return result;
}

@end
