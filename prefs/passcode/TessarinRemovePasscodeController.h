// Removing the product passcode, once the stored one is entered.
#pragma once
#import "passcode/TessarinPasscodeController.h"

namespace tessarin::passcode {
class RemovePasscodeFlow;
}

@interface TessarinRemovePasscodeController : TessarinPasscodeController {
  NSString *_oldPass;
  tessarin::passcode::RemovePasscodeFlow *_removeFlow;
}
// The stored passcode as read when the page was loaded.
@property (nonatomic, retain) NSString *oldPass;
@end
