#import "UIKitInternal.h"

#define SIM_VALUE_BOX(Type, Name)                                        \
  +(NSValue *)valueWith##Name : (Type)v {                                \
    return [NSValue valueWithBytes:&v objCType:@encode(Type)];           \
  }                                                                      \
  -(Type)Name##Value {                                                   \
    Type v;                                                              \
    memset(&v, 0, sizeof v);                                             \
    if (strcmp([self objCType], @encode(Type)) == 0) [self getValue:&v]; \
    return v;                                                            \
  }

@implementation NSValue (NSValueUIGeometryExtensions)
SIM_VALUE_BOX(CGPoint, CGPoint)
SIM_VALUE_BOX(CGVector, CGVector)
SIM_VALUE_BOX(CGSize, CGSize)
SIM_VALUE_BOX(CGRect, CGRect)
SIM_VALUE_BOX(CGAffineTransform, CGAffineTransform)
SIM_VALUE_BOX(UIEdgeInsets, UIEdgeInsets)
SIM_VALUE_BOX(UIOffset, UIOffset)
@end
