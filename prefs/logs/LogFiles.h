// The crash-log pages' way to the log directory on the device.
#pragma once
#import <Foundation/Foundation.h>
#include <string>
#include "logs/LogDirectory.hpp"

// The product's log directory, its paths mapped onto the device.
tessarin::logs::LogDirectory deviceLogDirectory(void);

// A file name in the file system's own encoding (what the directory listing gives);
// empty for anything that is not a string.
std::string fileSystemName(id text);
