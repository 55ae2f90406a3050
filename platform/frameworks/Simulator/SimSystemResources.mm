// System resources whose presence depends on the system version: SpringBoard's and the
// private frameworks' images, the Control Center module bundles of each generation, and
// the Control Center add-ons a profile installs (add-on modules, CCSettings).
#import <Foundation/Foundation.h>
#include <Simulator/SimSystemResources.h>
#import "Simulator/SimInternal.h"

#include <string.h>

namespace {

// The 24 bytes of a PNG signature and header: what the image stand-in measures.
NSData *pngOfSize(unsigned width, unsigned height) {
  unsigned char b[24] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (int i = 0; i < 4; ++i) {
    b[16 + i] = (unsigned char)(width >> (24 - 8 * i));
    b[20 + i] = (unsigned char)(height >> (24 - 8 * i));
  }
  return [NSData dataWithBytes:b length:sizeof b];
}

BOOL writeData(NSString *rootPath, NSString *devicePath, NSData *data) {
  NSString *hostPath = [rootPath stringByAppendingString:devicePath];
  return SimMakeDirectories([hostPath stringByDeletingLastPathComponent]) && [data writeToFile:hostPath atomically:YES];
}

// "<name>@2x.png" and "<name>@3x.png" of a `points`-square image in `folder`.
BOOL writeImage(NSString *rootPath, NSString *folder, NSString *name, unsigned points) {
  BOOL ok = YES;
  for (unsigned scale = 2; scale <= 3; scale++) {
    NSString *file = [NSString stringWithFormat:@"%@/%@@%ux.png", folder, name, scale];
    ok = writeData(rootPath, file, pngOfSize(points * scale, points * scale)) && ok;
  }
  return ok;
}

BOOL writePlist(NSString *rootPath, NSString *devicePath, id plist) {
  NSData *data = [NSPropertyListSerialization dataWithPropertyList:plist
                                                            format:NSPropertyListXMLFormat_v1_0
                                                           options:0
                                                             error:NULL];
  return data != nil && writeData(rootPath, devicePath, data);
}

int majorVersion(NSDictionary *profile) {
  NSString *version = [profile objectForKey:@"systemVersion"];
  return [version isKindOfClass:[NSString class]] ? [version intValue] : 16;
}

// A module bundle: the display name when given, else only a bundle name; its image.
struct Module {
  const char *bundle;       // "FlashlightModule"
  const char *displayName;  // NULL: the bundle has none
  const char *image;        // "SettingsIcon" or the module's own image name
  int since;                // first system version that has it
};

constexpr Module kModules[] = {
    {"AudioModule", NULL, "SettingsIcon", 11},
    {"ConnectivityModule", NULL, "SettingsIcon", 11},
    {"MuteModule", NULL, "SettingsIcon", 11},
    {"DisplayModule", NULL, "SettingsIcon", 11},
    {"OrientationLockModule", "Orientation Lock", "SettingsIcon", 11},
    {"MediaControlsModule", NULL, "SettingsIcon", 11},
    {"FlashlightModule", "Flashlight", "SettingsIcon", 11},
    {"CalculatorModule", "Calculator", "SettingsIcon", 11},
    {"CameraModule", "Camera", "SettingsIcon", 11},
    {"TimerModule", NULL, "SettingsIcon", 11},
    {"DoNotDisturbModule", "Do Not Disturb", "DND", 11},
    {"AirPlayMirroringModule", "Screen Mirroring", "AirPlayMirroringGlyph", 11},
    {"ReplayKitModule", "ReplayKit", "SettingsIcon", 11},
    {"LowPowerModule", "Low Power Mode", "SettingsIcon", 11},
    {"QRCodeModule", "Scan QR Code", "SettingsIcon", 12},
    {"DarkModeModule", NULL, "SettingsIcon", 13},
    {"HearingAidsModule", "Hearing", "SettingsIcon", 13},
    {"QuickNoteModule", "Quick Note", "SettingsIcon", 15},
};

BOOL writeModule(NSString *rootPath, NSString *folder, NSString *bundle, NSDictionary *info, NSString *image) {
  NSString *path = [folder stringByAppendingPathComponent:bundle];
  BOOL ok = writePlist(rootPath, [path stringByAppendingPathComponent:@"Info.plist"], info);
  if (image != nil) ok = writeImage(rootPath, path, image, 29) && ok;
  return ok;
}

}  // namespace

extern "C" int SimInstallSystemResources(const char *root, NSDictionary *profile) {
  if (root == NULL || root[0] != '/') return -1;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *r = [NSString stringWithUTF8String:root];
  const int major = majorVersion(profile);
  BOOL ok = YES;

  // SpringBoard: the newsstand icon until iOS 14, the classic Control Center glyphs.
  NSString *springBoard = @"/System/Library/CoreServices/SpringBoard.app";
  ok = writePlist(r, [springBoard stringByAppendingPathComponent:@"Info.plist"],
                  @{@"CFBundleIdentifier" : @"com.apple.springboard", @"CFBundleExecutable" : @"SpringBoard"}) &&
       ok;
  if (major <= 14) ok = writeImage(r, springBoard, @"NewsstandIconInternational", 60) && ok;
  for (NSString *glyph in @[ @"ControlCenterGlyphAirplane", @"ControlCenterGlyphWifi", @"ControlCenterGlyphBluetooth" ])
    ok = writeImage(r, springBoard, glyph, 20) && ok;
  NSString *controlCenterUI = @"/System/Library/PrivateFrameworks/ControlCenterUI.framework";
  for (NSString *glyph in
       @[ @"ControlCenterGlyphMoon", @"ControlCenterGlyphOrientationLocked", @"ControlCenterGlyphWifi" ])
    ok = writeImage(r, controlCenterUI, glyph, 20) && ok;

  // Settings icons in Preferences and Sharing from iOS 15; connectivity glyphs before.
  if (major >= 15) {
    NSString *preferences = @"/System/Library/PrivateFrameworks/Preferences.framework";
    for (NSString *icon in @[ @"AirplaneMode", @"CellularData", @"WiFi", @"Bluetooth", @"PersonalHotspot" ])
      ok = writeImage(r, preferences, icon, 29) && ok;
    ok = writeImage(r, @"/System/Library/PrivateFrameworks/Sharing.framework", @"AirDrop-Settings", 29) && ok;
  }
  NSString *modules = @"/System/Library/ControlCenter/Bundles";
  for (const Module &m : kModules) {
    if (m.since > major) continue;
    NSString *name = [NSString stringWithUTF8String:m.bundle];
    NSMutableDictionary *info = [NSMutableDictionary dictionary];
    [info setObject:[@"com.apple.control-center." stringByAppendingString:name] forKey:@"CFBundleIdentifier"];
    [info setObject:name forKey:@"CFBundleName"];
    if (m.displayName) [info setObject:[NSString stringWithUTF8String:m.displayName] forKey:@"CFBundleDisplayName"];
    ok = writeModule(r, modules, [name stringByAppendingPathExtension:@"bundle"], info,
                     [NSString stringWithUTF8String:m.image]) &&
         ok;
  }
  NSString *connectivity = [modules stringByAppendingPathComponent:@"ConnectivityModule.bundle"];
  for (NSString *glyph in
       @[ @"AirplaneGlyph", @"CellularDataGlyph", @"WiFiSignalHighGlyph", @"AirDropGlyph", @"HotspotGlyph" ])
    ok = writeImage(r, connectivity, glyph, 24) && ok;
  ok = writeImage(r, @"/System/Library/PrivateFrameworks/LegacyGameKit.framework", @"bt_logo", 24) && ok;

  // Add-on modules: {bundle, info (may lack names), image (default "SettingsIcon", "" none)}.
  NSArray *addOns = [profile objectForKey:@"controlCenterAddOns"];
  if ([addOns isKindOfClass:[NSArray class]]) {
    for (NSDictionary *addOn in addOns) {
      if (![addOn isKindOfClass:[NSDictionary class]]) continue;
      NSString *bundle = [addOn objectForKey:@"bundle"];
      NSDictionary *info = [addOn objectForKey:@"info"];
      NSString *image = [addOn objectForKey:@"image"];
      if (![image isKindOfClass:[NSString class]]) image = @"SettingsIcon";
      if (![bundle isKindOfClass:[NSString class]] || ![info isKindOfClass:[NSDictionary class]]) continue;
      ok = writeModule(r, @"/Library/ControlCenter/Bundles", bundle, info, [image length] ? image : nil) && ok;
    }
  }

  // CCSettings: its library, its settings bundle with toggle icons, and its order file.
  NSDictionary *ccsettings = [profile objectForKey:@"ccsettings"];
  if ([ccsettings isKindOfClass:[NSDictionary class]]) {
    ok = writeData(r, @"/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib",
                   [@"simulated\n" dataUsingEncoding:NSUTF8StringEncoding]) &&
         ok;
    NSString *settings = @"/Library/PreferenceBundles/CCSettingsPreferences.bundle";
    ok = writePlist(r, [settings stringByAppendingPathComponent:@"Info.plist"],
                    @{@"CFBundleIdentifier" : @"com.ccsettings.preferences"}) &&
         ok;
    NSArray *icons = [ccsettings objectForKey:@"icons"];
    if ([icons isKindOfClass:[NSArray class]])
      for (NSString *icon in icons)
        if ([icon isKindOfClass:[NSString class]]) ok = writeImage(r, settings, icon, 29) && ok;
    id order = [ccsettings objectForKey:@"order"];
    NSString *orderFile = [ccsettings objectForKey:@"orderFile"];
    if (order != nil && [orderFile isKindOfClass:[NSString class]]) {
      if ([order isKindOfClass:[NSData class]])
        ok = writeData(r, orderFile, order) && ok;
      else
        ok = writePlist(r, orderFile, order) && ok;
    }
  }
  [pool release];
  return ok ? 0 : -1;
}
