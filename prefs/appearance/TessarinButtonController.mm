#import "appearance/TessarinButtonController.h"
#import "core/BundleLookup.h"
#import "core/Hardware.h"
#import "core/VersionFlags.h"

@implementation TessarinButtonController

- (NSArray *)specifiers {
  if ([_specifiers count] == 0) {
    // The glyphs need a biometric sensor (and a system with PassKit's glyph).
    NSString *plist = systemVersion.iOS8 && iPhone64Bit() ? @"TessarinButtons" : @"TessarinButtonsNoGlyph";
    NSArray *rows = [self loadSpecifiersFromPlistName:plist target:self];
    for (PSSpecifier *row in rows) {
      id rowID = [row propertyForKey:@"id"];
      if ([rowID isKindOfClass:[NSString class]] && [rowID isEqualToString:@"CHOOSE_COLOR"])
        [row setName:localizedString(@"CHOOSE_COLOR", @"Choose a color")];
    }
    [_specifiers release];
    _specifiers = [rows retain];
  }
  [self setTitle:[[self specifier] name]];
  return _specifiers;
}

@end
