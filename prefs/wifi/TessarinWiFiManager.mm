#import "wifi/TessarinWiFiManager.h"
#import "core/PlatformAPI.h"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"
#include "wifi/WiFiNetworks.hpp"

namespace wifi = tessarin::wifi;

// Also used by the trusted networks page.
WiFiManagerClientCopyNetworksFunction xWiFiManagerClientCopyNetworks = NULL;

namespace {

TessarinWiFiManager *sharedwifi = nil;
WiFiManagerClientScheduleWithRunLoopFunction xWiFiManagerClientScheduleWithRunLoop = NULL;
WiFiNetworkGetPropertyFunction __mWiFiNetworkGetProperty = NULL;
WiFiNetworkCopyPasswordFunction __mWiFiNetworkCopyPassword = NULL;
WiFiDeviceClientCopyCurrentNetworkFunction xWiFiDeviceClientCopyCurrentNetwork = NULL;
WiFiManagerClientCreateFunction xWiFiManagerClientCreate = NULL;
WiFiManagerClientCopyDevicesFunction xWiFiManagerClientCopyDevices = NULL;

NSString *stringOrNil(id object) { return [object isKindOfClass:[NSString class]] ? object : nil; }

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
  xWiFiManagerClientScheduleWithRunLoop =
      (WiFiManagerClientScheduleWithRunLoopFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientScheduleWithRunLoop");
  __mWiFiNetworkGetProperty = (WiFiNetworkGetPropertyFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkGetProperty");
  __mWiFiNetworkCopyPassword = (WiFiNetworkCopyPasswordFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkCopyPassword");
  xWiFiDeviceClientCopyCurrentNetwork =
      (WiFiDeviceClientCopyCurrentNetworkFunction)dlsym(RTLD_DEFAULT, "WiFiDeviceClientCopyCurrentNetwork");
  xWiFiManagerClientCreate = (WiFiManagerClientCreateFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCreate");
  xWiFiManagerClientCopyDevices =
      (WiFiManagerClientCopyDevicesFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyDevices");
  xWiFiManagerClientCopyNetworks =
      (WiFiManagerClientCopyNetworksFunction)dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyNetworks");
  // Without the library there is no client: no devices, no networks, no current network.
  if (xWiFiManagerClientCreate != NULL) WifiManager = xWiFiManagerClientCreate(kCFAllocatorDefault, 1);
  return self;
}

- (NSArray *)devices {
  if (WifiManager == NULL || xWiFiManagerClientCopyDevices == NULL) return [NSArray array];
  return arrayFromCopy(xWiFiManagerClientCopyDevices((WiFiManagerClientRef)WifiManager));
}

- (NSArray *)networks {
  if (WifiManager == NULL || xWiFiManagerClientCopyNetworks == NULL) return [NSArray array];
  return arrayFromCopy(xWiFiManagerClientCopyNetworks((WiFiManagerClientRef)WifiManager));
}

- (void *)currentNetwork {
  NSArray *devices = [self devices];
  if ([devices count] == 0 || xWiFiDeviceClientCopyCurrentNetwork == NULL) return NULL;
  return xWiFiDeviceClientCopyCurrentNetwork((WiFiDeviceClientRef)[devices objectAtIndex:0]);
}

- (NSString *)ssidForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkGetProperty == NULL) return nil;
  return stringOrNil((id)__mWiFiNetworkGetProperty((WiFiNetworkRef)network, (CFStringRef) @"SSID_STR"));
}

- (NSString *)bssidForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkGetProperty == NULL) return nil;
  return stringOrNil((id)__mWiFiNetworkGetProperty((WiFiNetworkRef)network, (CFStringRef) @"BSSID"));
}

- (NSString *)passwordForNetwork:(void *)network {
  if (network == NULL || __mWiFiNetworkCopyPassword == NULL) return nil;
  CFStringRef password = __mWiFiNetworkCopyPassword((WiFiNetworkRef)network);
  if (password == NULL) return nil;
  NSString *copy = [NSString stringWithString:(NSString *)password];
  CFRelease(password);
  return copy;
}

- (BOOL)isOnTrustedNetwork {
  CFStringRef domain = (CFStringRef) @(tessarin::kDomain);
  CFPreferencesAppSynchronize(domain);
  id stored = [(id)CFPreferencesCopyAppValue((CFStringRef) @(tessarin::key::kAllowedWiFis.name()), domain) autorelease];
  std::vector<wifi::TrustedEntry> trusted;
  if ([stored isKindOfClass:[NSArray class]]) {
    for (id entry in (NSArray *)stored) {
      if (![entry isKindOfClass:[NSDictionary class]]) {
        trusted.push_back({});
        continue;
      }
      trusted.push_back(
          {text(stringOrNil([entry objectForKey:@"bssid"])), text(stringOrNil([entry objectForKey:@"ssid"]))});
    }
  }
  return wifi::isTrusted(trusted, [self] { return text([self bssidForNetwork:[self currentNetwork]]); });
}

- (NSMutableArray *)networksArrayAsDictionaries {
  NSMutableArray *result = [NSMutableArray array];
  NSArray *networks = [self networks];
  WiFiNetworkCopyRecordFunction copyRecord =
      (WiFiNetworkCopyRecordFunction)dlsym(RTLD_DEFAULT, "WiFiNetworkCopyRecord");

  std::vector<wifi::PlatformNetwork> known;
  for (id network in networks) {
    wifi::PlatformNetwork facts;
    if (copyRecord != NULL) {
      NSDictionary *record = [(NSDictionary *)copyRecord((WiFiNetworkRef)network) autorelease];
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
