/* Bitmap images (the stand-in keeps only their pixel size and a description of their content). */
#ifndef COREGRAPHICS_CGIMAGE_H
#define COREGRAPHICS_CGIMAGE_H

#include <CoreGraphics/CGBase.h>

typedef struct CGImage *CGImageRef;

CG_EXTERN_C_BEGIN
CGImageRef CGImageRetain(CGImageRef image);
void CGImageRelease(CGImageRef image);
size_t CGImageGetWidth(CGImageRef image);
size_t CGImageGetHeight(CGImageRef image);
CG_EXTERN_C_END

#endif
