// The crash-log list: the product's crash logs, newest first, deleted by swiping, each
// opening in the viewer.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinDebugLogsController : PSEditableListController
@end
