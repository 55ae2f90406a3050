// The change page is declared beside the remove page.
#pragma once
#import "passcode/TessarinRemovePasscodeController.h"
