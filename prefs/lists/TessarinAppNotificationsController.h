// The application notifications page: the applications page's rows, storing the
// applications whose notifications are protected.
#pragma once
#import "lists/TessarinApplicationsController.h"

@interface TessarinAppNotificationsController : TessarinApplicationsController
@end
