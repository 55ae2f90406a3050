#ifndef PREFERENCES_PSHEADERFOOTERVIEW_H
#define PREFERENCES_PSHEADERFOOTERVIEW_H

#import <UIKit/UIKit.h>

@class PSSpecifier;

/* Views named by a group's "headerCellClass" / "footerCellClass". */
@protocol PSHeaderFooterView <NSObject>
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
@optional
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView;
@end

#endif
