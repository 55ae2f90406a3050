#pragma once

// Sends each of the bundle's eight messages to SpringBoard through the bundle's
// own transport and prints what came back and how long it took.
int runMessageProbe(void);
