// The stand-in's own parts: the device profile it reads, the records it keeps for tests,
// resetting them, and the timeline that runs animation and transition completions.
#import "UIKitInternal.h"
#include <Simulator/Simulator.h>

const NSTimeInterval SimTransitionDuration = 0.35;

#pragma mark - Profile access

NSDictionary *SimUIKitProfile(void) {
  NSDictionary *p = SimDeviceProfile();
  return [p isKindOfClass:[NSDictionary class]] ? p : [NSDictionary dictionary];
}

BOOL SimUIKitDarkMode(void) {
  id v = [SimUIKitProfile() objectForKey:@"darkMode"];
  return [v respondsToSelector:@selector(boolValue)] && [v boolValue];
}

#pragma mark - Records

@implementation _SimUIKitRecords
@synthesize sounds = _sounds;
@synthesize urls = _urls;
@synthesize urlOptions = _urlOptions;
@synthesize animations = _animations;
- (instancetype)init {
  if ((self = [super init])) {
    _sounds = [[NSMutableArray alloc] init];
    _urls = [[NSMutableArray alloc] init];
    _urlOptions = [[NSMutableArray alloc] init];
    _animations = [[NSMutableArray alloc] init];
  }
  return self;
}
@end

_SimUIKitRecords *SimUIKitRecords(void) {
  static _SimUIKitRecords *records;
  if (!records) records = [[_SimUIKitRecords alloc] init];
  return records;
}

NSArray *SimPlayedSystemSounds(void) { return [NSArray arrayWithArray:SimUIKitRecords().sounds]; }
NSArray *SimOpenedURLs(void) { return [NSArray arrayWithArray:SimUIKitRecords().urls]; }
NSArray *SimOpenedURLOptions(void) { return [NSArray arrayWithArray:SimUIKitRecords().urlOptions]; }
NSArray *SimRecordedViewAnimations(void) { return [NSArray arrayWithArray:SimUIKitRecords().animations]; }
void SimUIKitRecordURL(NSURL *url, NSDictionary *options) {
  if (!url) return;
  [SimUIKitRecords().urls addObject:url];
  [SimUIKitRecords().urlOptions addObject:options ? (id)options : (id)[NSNull null]];
}
void SimUIKitRecordAnimation(NSTimeInterval duration, NSTimeInterval delay, NSUInteger options) {
  NSDictionary *d = [NSDictionary
      dictionaryWithObjectsAndKeys:[NSNumber numberWithDouble:duration], @"duration", [NSNumber numberWithDouble:delay],
                                   @"delay", [NSNumber numberWithUnsignedInteger:options], @"options", nil];
  [SimUIKitRecords().animations addObject:d];
}

void SimUIKitReset(void) {
  _SimUIKitRecords *r = SimUIKitRecords();
  [r.sounds removeAllObjects];
  [r.urls removeAllObjects];
  [r.urlOptions removeAllObjects];
  [r.animations removeAllObjects];
  [UIPasteboard generalPasteboard].items = [NSArray array];
  SimUIKitResetResponders();
  SimUIKitResetApplication();
}

// Animation and transition completions wait on the main run loop's clock, in due order.
void SimUIKitSchedule(NSTimeInterval delay, void (^block)(void)) { SimClockSchedule(delay, block); }
