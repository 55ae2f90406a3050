#import "core/Hardware.h"
#import "core/PlatformAPI.h"

BOOL hasPearlCam = NO;
BOOL hasSetPearl = NO;

// Looks one service class up in the registry and releases what it found.
static BOOL serviceExists(const char *className) {
  io_service_t service = IOServiceGetMatchingService(kIOMasterPortDefault, IOServiceMatching(className));
  if (!service) return NO;
  IOObjectRelease(service);
  return YES;
}

BOOL iPhone64Bit(void) {
  BOOL touchID = serviceExists("AppleMesa");
  BOOL pearl = serviceExists("AppleH10PearlCam");
  BOOL neuralEngine = serviceExists("H11ANEIn");
  if (pearl || neuralEngine) hasPearlCam = YES;
  return touchID || hasPearlCam;
}

BOOL hasPearl(void) {
  if (!hasSetPearl) {
    hasPearlCam = serviceExists("AppleH10PearlCam") || serviceExists("H11ANEIn");
    hasSetPearl = YES;
  }
  return hasPearlCam;
}
