// The toggle library as a device holds it: a shared library of its own, placed at its
// path in the device tree only when the profile installs it. The switches are those a
// device with a few switch packages has, the product's own among them, in the order the
// library finds their bundles (not sorted).
#import <Flipswitch/FSSwitchPanel.h>
#import <CoreGraphics/CoreGraphicsSimulation.h>

namespace {

struct Switch {
  const char *identifier;
  const char *title;
};

const Switch kSwitches[] = {
    {"org.toggles.wifi", "Wi-Fi"},
    {"org.toggles.bluetooth", "Bluetooth"},
    {"org.toggles.airplane-mode", "Airplane Mode"},
    {"net.corvane.tessarin.switch", "Tessarin"},
    {"org.toggles.flashlight", "Flashlight"},
    {"org.toggles.do-not-disturb", "Do Not Disturb"},
    {"org.toggles.rotation-lock", "Rotation Lock"},
    {"org.toggles.low-power", "Low Power Mode"},
    {"org.toggles.vpn", "VPN"},
    {"org.toggles.respring", "Respring"},
};

const Switch *findSwitch(NSString *identifier) {
  if (![identifier isKindOfClass:[NSString class]]) return nullptr;
  for (const Switch &s : kSwitches)
    if ([identifier isEqualToString:@(s.identifier)]) return &s;
  return nullptr;
}

}  // namespace

@implementation FSSwitchPanel

+ (instancetype)sharedPanel {
  static FSSwitchPanel *panel;
  if (panel == nil) panel = [[FSSwitchPanel alloc] init];
  return panel;
}

- (NSArray *)switchIdentifiers {
  NSMutableArray *identifiers = [NSMutableArray array];
  for (const Switch &s : kSwitches) [identifiers addObject:@(s.identifier)];
  return [[identifiers copy] autorelease];
}

- (NSString *)titleForSwitchIdentifier:(NSString *)switchIdentifier {
  const Switch *s = findSwitch(switchIdentifier);
  return s != nullptr ? @(s->title) : nil;
}

- (UIImage *)imageOfSwitchState:(FSSwitchState)state
                   controlState:(UIControlState)controlState
            forSwitchIdentifier:(NSString *)switchIdentifier
                  usingTemplate:(NSBundle *)templateBundle {
  if (templateBundle == nil || findSwitch(switchIdentifier) == nullptr) return nil;
  CGFloat scale = [UIScreen mainScreen].scale > 0 ? [UIScreen mainScreen].scale : 2;
  size_t px = (size_t)(29 * scale);
  NSString *what =
      [NSString stringWithFormat:@"switch:%@ state %ld control %lu template %@", switchIdentifier, (long)state,
                                 (unsigned long)controlState, [[templateBundle bundlePath] lastPathComponent]];
  CGImageRef image = SimCGImageCreate(px, px, what, nil);
  UIImage *result = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return result;
}

@end
