#import <UIKit/UISwitch.h>
