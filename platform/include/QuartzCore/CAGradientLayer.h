#include <QuartzCore/CAShapeLayer.h>
