// The alert-title page: one text row for the title of the product's prompts and a
// "Save" button that stores it and leaves the page.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinAlertTitleController : PSListController
- (void)save:(id)sender;
@end
