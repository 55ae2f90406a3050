// The private Wi-Fi client functions, answering from the device profile's "wifi":
// {"current": BSSID, "networks": [{"ssid", "bssid", "password", "lastJoined"}]}.
// Looked up by name (dlsym); handles are objects of the private classes below.

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include "Simulator/SimInternal.h"

@interface SimWiFiManagerClient : NSObject
@end
@implementation SimWiFiManagerClient
@end

@interface SimWiFiDeviceClient : NSObject
@end
@implementation SimWiFiDeviceClient
@end

@interface SimWiFiNetwork : NSObject {
  NSDictionary *_record;
  NSString *_password;
}
@property (nonatomic, retain) NSDictionary *record;
@property (nonatomic, copy) NSString *password;
@end

@implementation SimWiFiNetwork
@synthesize record = _record;
@synthesize password = _password;

- (void)dealloc {
  [_record release];
  [_password release];
  [super dealloc];
}
@end

static SimWiFiNetwork *networkFromProfile(NSDictionary *entry) {
  if (![entry isKindOfClass:[NSDictionary class]]) return nil;
  NSMutableDictionary *record = [NSMutableDictionary dictionary];
  id ssid = [entry objectForKey:@"ssid"], bssid = [entry objectForKey:@"bssid"];
  id joined = [entry objectForKey:@"lastJoined"], password = [entry objectForKey:@"password"];
  if ([ssid isKindOfClass:[NSString class]]) [record setObject:ssid forKey:@"SSID_STR"];
  if ([bssid isKindOfClass:[NSString class]]) [record setObject:bssid forKey:@"BSSID"];
  if ([joined isKindOfClass:[NSDate class]]) [record setObject:joined forKey:@"lastJoined"];
  SimWiFiNetwork *network = [[[SimWiFiNetwork alloc] init] autorelease];
  [network setRecord:record];
  if ([password isKindOfClass:[NSString class]]) [network setPassword:password];
  return network;
}

static NSDictionary *wifiProfile(void) { return SimProfileValue(@"wifi", [NSDictionary class]); }

static NSArray *profileNetworks(void) {
  NSArray *entries = [wifiProfile() objectForKey:@"networks"];
  NSMutableArray *networks = [NSMutableArray array];
  if (![entries isKindOfClass:[NSArray class]]) return networks;
  for (id entry in entries) {
    SimWiFiNetwork *network = networkFromProfile(entry);
    if (network) [networks addObject:network];
  }
  return networks;
}

#define WIFI_EXPORT extern "C" __attribute__((visibility("default")))

WIFI_EXPORT CFTypeRef WiFiManagerClientCreate(CFAllocatorRef allocator, int flags) {
  return (CFTypeRef)[[SimWiFiManagerClient alloc] init];
}

WIFI_EXPORT void WiFiManagerClientScheduleWithRunLoop(CFTypeRef client, CFRunLoopRef runLoop, CFStringRef mode) {}

WIFI_EXPORT CFArrayRef WiFiManagerClientCopyDevices(CFTypeRef client) {
  if (![(id)client isKindOfClass:[SimWiFiManagerClient class]]) return NULL;
  NSMutableArray *devices = [[NSMutableArray alloc] init];
  if (wifiProfile() != nil) [devices addObject:[[[SimWiFiDeviceClient alloc] init] autorelease]];
  return (CFArrayRef)devices;
}

WIFI_EXPORT CFArrayRef WiFiManagerClientCopyNetworks(CFTypeRef client) {
  if (![(id)client isKindOfClass:[SimWiFiManagerClient class]]) return NULL;
  return (CFArrayRef)[profileNetworks() copy];
}

WIFI_EXPORT CFTypeRef WiFiDeviceClientCopyCurrentNetwork(CFTypeRef device) {
  if (![(id)device isKindOfClass:[SimWiFiDeviceClient class]]) return NULL;
  NSString *current = [wifiProfile() objectForKey:@"current"];
  if (![current isKindOfClass:[NSString class]]) return NULL;
  for (SimWiFiNetwork *network in profileNetworks())
    if ([[[network record] objectForKey:@"BSSID"] isEqual:current]) return (CFTypeRef)[network retain];
  // On a network the device has no record of: only its address is known.
  SimWiFiNetwork *network = [[SimWiFiNetwork alloc] init];
  [network setRecord:[NSDictionary dictionaryWithObject:current forKey:@"BSSID"]];
  return (CFTypeRef)network;
}

WIFI_EXPORT CFPropertyListRef WiFiNetworkGetProperty(CFTypeRef network, CFStringRef property) {
  if (![(id)network isKindOfClass:[SimWiFiNetwork class]] || property == NULL) return NULL;
  return (CFPropertyListRef)[[(SimWiFiNetwork *)network record] objectForKey:(NSString *)property];
}

WIFI_EXPORT CFStringRef WiFiNetworkCopyPassword(CFTypeRef network) {
  if (![(id)network isKindOfClass:[SimWiFiNetwork class]]) return NULL;
  return (CFStringRef)[[(SimWiFiNetwork *)network password] copy];
}

WIFI_EXPORT CFDictionaryRef WiFiNetworkCopyRecord(CFTypeRef network) {
  if (![(id)network isKindOfClass:[SimWiFiNetwork class]]) return NULL;
  return (CFDictionaryRef)[[(SimWiFiNetwork *)network record] copy];
}
