/* Transactions group layer changes. Changes apply at once; a completion block runs on the
   main run loop when the outermost transaction commits. */
#ifndef QUARTZCORE_CATRANSACTION_H
#define QUARTZCORE_CATRANSACTION_H

#include <QuartzCore/CABase.h>
#include <QuartzCore/CAMediaTimingFunction.h>

@interface CATransaction : NSObject
+ (void)begin;
+ (void)commit;
+ (void)flush;
+ (void)lock;
+ (void)unlock;
+ (CFTimeInterval)animationDuration;
+ (void)setAnimationDuration:(CFTimeInterval)dur;
+ (CAMediaTimingFunction *)animationTimingFunction;
+ (void)setAnimationTimingFunction:(CAMediaTimingFunction *)function;
+ (BOOL)disableActions;
+ (void)setDisableActions:(BOOL)flag;
+ (void (^)(void))completionBlock;
+ (void)setCompletionBlock:(void (^)(void))block;
+ (id)valueForKey:(NSString *)key;
+ (void)setValue:(id)anObject forKey:(NSString *)key;
@end

#endif
