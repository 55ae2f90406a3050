#pragma once
#import <Foundation/Foundation.h>

@interface NSArray (crv)
// The first element whose class is exactly `cls` (subclasses do not count), or nil.
- (id)objectOfClass:(Class)cls;
@end
