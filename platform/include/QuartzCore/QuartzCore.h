#ifndef QUARTZCORE_QUARTZCORE_H
#define QUARTZCORE_QUARTZCORE_H

#include <QuartzCore/CABase.h>
#include <QuartzCore/CATransform3D.h>
#include <QuartzCore/CAMediaTimingFunction.h>
#include <QuartzCore/CAAnimation.h>
#include <QuartzCore/CATransaction.h>
#include <QuartzCore/CALayer.h>
#include <QuartzCore/CAShapeLayer.h>
#include <QuartzCore/CAGradientLayer.h>

#endif
