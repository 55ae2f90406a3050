#import "core/VersionFlags.h"

tessarin::SystemVersionFlags systemVersion = {};

NSString *systemVersionString(void) { return [[NSProcessInfo processInfo] operatingSystemVersionString]; }

static tessarin::SystemVersionFlags currentFlags(void) {
  const char *version = [systemVersionString() UTF8String];
  return tessarin::systemVersionFlags(version ? version : "");
}

void setModernVersionFlags(void) {
  tessarin::SystemVersionFlags flags = currentFlags();
  systemVersion.iOS17 = flags.iOS17;
  systemVersion.iOS16 = flags.iOS16;
  systemVersion.iOS15 = flags.iOS15;
  systemVersion.iOS14 = flags.iOS14;
  systemVersion.iOS13 = flags.iOS13;
  systemVersion.iOS11 = true;  // always, in the Settings process
}

void setLegacyVersionFlags(void) {
  tessarin::SystemVersionFlags flags = currentFlags();
  systemVersion.iOS10_2 = flags.iOS10_2;
  systemVersion.iOS10 = flags.iOS10;
  systemVersion.iOS8 = flags.iOS8;
}
