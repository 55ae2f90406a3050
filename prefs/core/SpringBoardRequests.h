// Questions to SpringBoard on the product's messaging centre.
#pragma once
#import <Foundation/Foundation.h>

// The reply to `message` (a four-character identifier) when it is a dictionary; nil
// when SpringBoard gives none in time, or something else.
NSDictionary *askSpringBoard(const char *message);
