#ifndef QUARTZCORE_CAGRADIENTLAYER_H
#define QUARTZCORE_CAGRADIENTLAYER_H

#include <QuartzCore/CALayer.h>

@interface CAGradientLayer : CALayer {
  NSArray *_colors;
  NSArray *_locations;
  CGPoint _startPoint;
  CGPoint _endPoint;
  NSString *_type;
}
@property (nonatomic, copy) NSArray *colors;
@property (nonatomic, copy) NSArray *locations;
@property (nonatomic) CGPoint startPoint;
@property (nonatomic) CGPoint endPoint;
@property (nonatomic, copy) NSString *type;
@end

#endif
