// The device's known Wi-Fi networks, from the system's private Wi-Fi client library.
#pragma once
#import <Foundation/Foundation.h>

@interface TessarinWiFiManager : NSObject {
  void *WifiManager;  // the Wi-Fi client, kept for the life of the process
}

+ (instancetype)sharedInstance;

// Platform device handles, and known (joined) network handles, unsorted.
- (NSArray *)devices;
- (NSArray *)networks;
// The network of the first Wi-Fi device, or NULL.
- (void *)currentNetwork;

- (NSString *)ssidForNetwork:(void *)network;
- (NSString *)bssidForNetwork:(void *)network;
- (NSString *)passwordForNetwork:(void *)network;

// Whether the current network's BSSID is one the user trusts.
- (BOOL)isOnTrustedNetwork;
// One record ("ssid", "bssid", optional "password") per known network, most recently joined first.
- (NSMutableArray *)networksArrayAsDictionaries;

@end
