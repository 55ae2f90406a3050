#ifndef UIKIT_UIKITDEFINES_H
#define UIKIT_UIKITDEFINES_H

#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphics.h>

#ifdef __cplusplus
#define UIKIT_EXTERN extern "C"
#else
#define UIKIT_EXTERN extern
#endif

#ifndef NS_ENUM
#define NS_ENUM(_type, _name) \
  _type _name;                \
  enum
#endif
#ifndef NS_OPTIONS
#define NS_OPTIONS(_type, _name) \
  _type _name;                   \
  enum
#endif

#endif
