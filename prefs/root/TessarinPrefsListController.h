// The product's root settings page, the bundle's principal class.
#pragma once
#import "core/PlatformAPI.h"
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// SpringBoard's library version, cached once a reply gave a non-zero one (0 until then).
extern uint32_t cachedLibraryVersion;
// Set when SpringBoard stopped answering while the root page built its rows.
extern BOOL springBoardEmergency;

#ifdef __cplusplus
}
#endif

@interface TessarinPrefsListController : PSListController {
  UIView *_headerView;
  UILabel *_versionLabel;
  id _installedApps;
}
// The table header and the version label inside it.
@property (nonatomic, retain) UIView *headerView;
@property (nonatomic, retain) UILabel *versionLabel;
// SpringBoard's "apps" answer at load (nil without one).
@property (nonatomic, retain) id installedApps;

// The root page that last built its rows.
+ (instancetype)sharedInstance;

- (void)resetAllTessarinSettings:(PSSpecifier *)specifier;
- (void)loadUserPasswordController;
- (void)loadUserComplexPasswordController;
- (void)infoTapped:(id)sender;
- (void)alertView:(id)alertView clickedButtonAtIndex:(NSInteger)buttonIndex;

@end
