// The text page is declared beside the digit page.
#pragma once
#import "passcode/TessarinUserPasscodeController.h"
