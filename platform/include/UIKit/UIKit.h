#ifndef UIKIT_UIKIT_H
#define UIKIT_UIKIT_H

#import <Foundation/Foundation.h>
#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#import <UIKit/UIKitDefines.h>
#import <UIKit/UIGeometry.h>
#import <UIKit/NSText.h>
#import <UIKit/NSAttributedString.h>
#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UIImage.h>
#import <UIKit/UIGraphics.h>
#import <UIKit/UIBezierPath.h>
#import <UIKit/UIDevice.h>
#import <UIKit/UITraitCollection.h>
#import <UIKit/UIScreen.h>
#import <UIKit/UIResponder.h>
#import <UIKit/UIView.h>
#import <UIKit/UIWindow.h>
#import <UIKit/UIGestureRecognizer.h>
#import <UIKit/UITapGestureRecognizer.h>
#import <UIKit/UILongPressGestureRecognizer.h>
#import <UIKit/UILabel.h>
#import <UIKit/UIImageView.h>
#import <UIKit/UIControl.h>
#import <UIKit/UIButton.h>
#import <UIKit/UISwitch.h>
#import <UIKit/UISlider.h>
#import <UIKit/UISegmentedControl.h>
#import <UIKit/UITextField.h>
#import <UIKit/UISearchBar.h>
#import <UIKit/UIScrollView.h>
#import <UIKit/UITextView.h>
#import <UIKit/UITableViewCell.h>
#import <UIKit/UITableView.h>
#import <UIKit/UIViewController.h>
#import <UIKit/UISearchController.h>
#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UINavigationBar.h>
#import <UIKit/UINavigationController.h>
#import <UIKit/UIAlertController.h>
#import <UIKit/UIApplication.h>
#import <UIKit/UIPasteboard.h>

#endif
