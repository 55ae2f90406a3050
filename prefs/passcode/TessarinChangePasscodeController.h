// Changing the product passcode: the stored one first, then the new one twice.
#pragma once
#import "passcode/TessarinPasscodeController.h"

namespace tessarin::passcode {
class ChangePasscodeFlow;
}

@interface TessarinChangePasscodeController : TessarinPasscodeController {
  NSString *_oldPass;
  tessarin::passcode::ChangePasscodeFlow *_changeFlow;
}
// The stored passcode as read when the page was loaded.
@property (nonatomic, retain) NSString *oldPass;
@end
