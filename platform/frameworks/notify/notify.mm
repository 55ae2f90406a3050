#include "Simulator/SimInternal.h"
void SimNotifyDeviceChanged(void) {}
unsigned SimNotifyPostCount(const char *name) { return 0; }
