#ifndef COREGRAPHICS_COREGRAPHICS_H
#define COREGRAPHICS_COREGRAPHICS_H

#include <CoreGraphics/CGBase.h>
#include <CoreGraphics/CGGeometry.h>
#include <CoreGraphics/CGAffineTransform.h>
#include <CoreGraphics/CGColor.h>
#include <CoreGraphics/CGPath.h>
#include <CoreGraphics/CGImage.h>
#include <CoreGraphics/CGContext.h>

#endif
