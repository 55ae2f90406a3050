// Removing and changing the product passcode: both ask for the stored one first.
#pragma once
#import "passcode/TessarinPasscodeController.h"

namespace tessarin::passcode {
class RemovePasscodeFlow;
class ChangePasscodeFlow;
}

@interface TessarinRemovePasscodeController : TessarinPasscodeController {
  NSString *_oldPass;
  tessarin::passcode::RemovePasscodeFlow *_removeFlow;
}
// The stored passcode as read when the page was loaded.
@property (nonatomic, retain) NSString *oldPass;
@end

@interface TessarinChangePasscodeController : TessarinPasscodeController {
  NSString *_oldPass;
  tessarin::passcode::ChangePasscodeFlow *_changeFlow;
}
@property (nonatomic, retain) NSString *oldPass;
@end
