/* Inspection hooks of the CoreGraphics stand-in, for tests and the Settings host. */
#ifndef COREGRAPHICS_SIMULATION_H
#define COREGRAPHICS_SIMULATION_H

#include <CoreGraphics/CoreGraphics.h>

#ifdef __OBJC__
#import <Foundation/Foundation.h>

CG_EXTERN_C_BEGIN
/* A text description of the path's elements, e.g. "M 0 0; L 10 0; Z". */
NSString *SimCGPathDescription(CGPathRef path);
/* The drawing operations recorded by a context, one line each, oldest first. */
NSArray *SimCGContextOperations(CGContextRef c);
/* Makes a recording context of the given size in points and scale. Caller releases. */
CGContextRef SimCGContextCreate(CGSize size, CGFloat scale);
/* Appends a free-form line to the context's record (used by UIKit drawing). */
void SimCGContextRecord(CGContextRef c, NSString *line);
/* Makes an image of the given pixel size that carries a description (e.g. its file name)
   and, optionally, the operations that drew it. Caller releases. */
CGImageRef SimCGImageCreate(size_t width, size_t height, NSString *description, NSArray *operations);
NSString *SimCGImageDescription(CGImageRef image);
NSArray *SimCGImageOperations(CGImageRef image);
CG_EXTERN_C_END
#endif

#endif
