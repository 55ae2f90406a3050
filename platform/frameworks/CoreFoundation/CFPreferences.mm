#include "Simulator/SimInternal.h"
void SimPreferencesDeviceChanged(void) {}
