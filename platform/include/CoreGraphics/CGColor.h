/* Colours and colour spaces. CGColorRef objects are reference counted (retain/release). */
#ifndef COREGRAPHICS_CGCOLOR_H
#define COREGRAPHICS_CGCOLOR_H

#include <CoreGraphics/CGBase.h>

typedef struct CGColor *CGColorRef;
typedef struct CGColorSpace *CGColorSpaceRef;

typedef enum CGColorSpaceModel {
  kCGColorSpaceModelUnknown = -1,
  kCGColorSpaceModelMonochrome = 0,
  kCGColorSpaceModelRGB = 1,
} CGColorSpaceModel;

CG_EXTERN_C_BEGIN
CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
CGColorSpaceRef CGColorSpaceCreateDeviceGray(void);
CGColorSpaceRef CGColorSpaceRetain(CGColorSpaceRef space);
void CGColorSpaceRelease(CGColorSpaceRef space);
CGColorSpaceModel CGColorSpaceGetModel(CGColorSpaceRef space);
size_t CGColorSpaceGetNumberOfComponents(CGColorSpaceRef space);

/* `components` holds the space's components followed by alpha. */
CGColorRef CGColorCreate(CGColorSpaceRef space, const CGFloat *components);
CGColorRef CGColorCreateCopy(CGColorRef color);
CGColorRef CGColorCreateCopyWithAlpha(CGColorRef color, CGFloat alpha);
CGColorRef CGColorRetain(CGColorRef color);
void CGColorRelease(CGColorRef color);
bool CGColorEqualToColor(CGColorRef color1, CGColorRef color2);
size_t CGColorGetNumberOfComponents(CGColorRef color);
const CGFloat *CGColorGetComponents(CGColorRef color);
CGFloat CGColorGetAlpha(CGColorRef color);
CGColorSpaceRef CGColorGetColorSpace(CGColorRef color);
CG_EXTERN_C_END

#endif
