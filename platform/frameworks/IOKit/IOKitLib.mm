#include "Simulator/SimInternal.h"
unsigned SimIOKitMatchCount(void) { return 0; }
