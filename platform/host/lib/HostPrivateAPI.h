// The UIKit and Preferences API the Settings host drives, with the simulation's hooks
// (tapping rows, typing into passcode fields, the Settings app's root controller).
#pragma once
#import <Foundation/Foundation.h>
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/Preferences.h>
#import <Preferences/PreferencesSimulation.h>
#import <MessageUI/MessageUISimulation.h>
