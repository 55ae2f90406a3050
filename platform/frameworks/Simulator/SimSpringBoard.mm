#include "Simulator/SimInternal.h"
pid_t SimSpringBoardStart(const char *path) { return -1; }
void SimSpringBoardStop(pid_t pid) {}
