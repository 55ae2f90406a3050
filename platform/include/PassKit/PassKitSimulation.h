/* Test and host hooks of the PassKit stand-in; not part of the device's PassKit. The class
   lives in a bundle loaded at run time: reach it by name, never by a class reference. */
#ifndef PASSKIT_PASSKITSIMULATION_H
#define PASSKIT_PASSKITSIMULATION_H

#import <PassKit/PKGlyphView.h>

@interface PKGlyphView (Simulation)
/* Seconds an animated state change takes before its completion handler runs. */
+ (NSTimeInterval)_simTransitionDuration;
/* Every state asked for with setState:animated:completionHandler:, oldest first (NSNumber). */
- (NSArray *)_simStates;
/* Every colour change that reached the glyph, oldest first: dictionaries with "kind"
   ("primary" or "secondary"), "color" and "animated" (NSNumber). */
- (NSArray *)_simColorChanges;
@end

#endif
