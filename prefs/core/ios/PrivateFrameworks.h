/*
 * Classes of the private frameworks (and of one add-on) that the bundle uses, declared
 * for the device build, whose SDK has no headers for them. The Linux stand-ins declare
 * the same classes under Apple's header paths. Private members of public classes are
 * declared for both builds in core/PlatformAPI.h, which alone imports this file.
 *
 * Signatures are the system's own; only the members the bundle calls are declared.
 * - Preferences.framework classes (PS...): the bundle links that framework and
 *   subclasses several of them, so they are ordinary declarations.
 * - Classes of frameworks the bundle does not link (AppSupport, ManagedConfiguration,
 *   PassKit's glyph view, the Flipswitch add-on): weak imports (TESSARIN_RUNTIME_CLASS).
 *   Reach them with NSClassFromString(@"...") and message the result; the declarations
 *   are there so those messages type-check. The Makefile leaves any direct reference
 *   that slips through for dyld to resolve.
 * The system's biometric settings pages, the Settings root list (PrefsListController)
 * and PSUIAppleIDAccountDetailsLinkCell exist only on some systems and are used by name
 * only: they are deliberately not declared.
 */
#ifndef TESSARIN_IOS_PRIVATE_FRAMEWORKS_H
#define TESSARIN_IOS_PRIVATE_FRAMEWORKS_H

#import <Foundation/Foundation.h>
#import <UIKit/UIKit.h>

#define TESSARIN_RUNTIME_CLASS __attribute__((weak_import))

#pragma mark - Preferences.framework

typedef NS_ENUM(NSInteger, PSCellType) {
  PSGroupCell = 0,
  PSLinkCell = 1,
  PSLinkListCell = 2,
  PSListItemCell = 3,
  PSTitleValueCell = 4,
  PSSliderCell = 5,
  PSSwitchCell = 6,
  PSStaticTextCell = 7,
  PSEditTextCell = 8,
  PSSegmentCell = 9,
  PSGiantIconCell = 10,
  PSGiantCell = 11,
  PSSecureEditTextCell = 12,
  PSButtonCell = 13,
  PSEditTextViewCell = 14,
};

@interface PSSpecifier : NSObject
+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detailControllerClass
                                    cell:(PSCellType)cellType
                                    edit:(Class)editPaneClass;
+ (instancetype)groupSpecifierWithName:(NSString *)name;
// Not on every system: ask respondsToSelector: first.
+ (instancetype)groupSpecifierWithHeader:(NSString *)header footer:(NSString *)footer;
+ (instancetype)emptyGroupSpecifier;

@property (nonatomic, retain) NSString *name;
// The "id" property.
@property (nonatomic, retain) NSString *identifier;
@property (nonatomic, assign) id target;
@property (nonatomic, assign) PSCellType cellType;
@property (nonatomic, assign) Class detailControllerClass;
@property (nonatomic, assign) Class editPaneClass;
@property (nonatomic, assign) SEL buttonAction;
@property (nonatomic, assign) SEL controllerLoadAction;
@property (nonatomic, retain) id userInfo;
@property (nonatomic, retain) NSArray *values;
@property (nonatomic, retain) NSDictionary *titleDictionary;
@property (nonatomic, retain) NSMutableDictionary *properties;

- (id)propertyForKey:(NSString *)key;
- (void)setProperty:(id)value forKey:(NSString *)key;
- (void)removePropertyForKey:(NSString *)key;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles;
@end

@interface PSViewController : UIViewController
- (instancetype)initForContentSize:(CGSize)contentSize;
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, assign) UIViewController *parentController;
@property (nonatomic, assign) id rootController;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;
- (id)readPreferenceValue:(PSSpecifier *)specifier;
- (void)pushController:(UIViewController *)controller animate:(BOOL)animate;
@end

@interface PSListController : PSViewController <UITableViewDelegate, UITableViewDataSource> {
  // The page's row cache: subclasses fill it in -specifiers and return it.
  NSArray *_specifiers;
}
@property (nonatomic, retain) NSArray *specifiers;
- (NSArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target;
- (UITableView *)table;
- (NSBundle *)bundle;
- (void)reloadSpecifiers;
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)reloadSpecifierID:(NSString *)identifier;
- (PSSpecifier *)specifierForID:(NSString *)identifier;
- (PSSpecifier *)specifierAtIndex:(NSInteger)index;
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier;
- (NSInteger)indexOfSpecifierID:(NSString *)identifier;
- (BOOL)containsSpecifier:(PSSpecifier *)specifier;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index animated:(BOOL)animated;
- (void)addSpecifier:(PSSpecifier *)specifier;
- (void)addSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)removeSpecifier:(PSSpecifier *)specifier;
- (void)removeSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)removeSpecifierID:(NSString *)identifier;
- (void)removeSpecifierID:(NSString *)identifier animated:(BOOL)animated;
- (UITableViewCell *)cachedCellForSpecifier:(PSSpecifier *)specifier;
- (UITableViewCell *)cachedCellForSpecifierID:(NSString *)identifier;
@end

@interface PSEditableListController : PSListController
@property (nonatomic, assign) BOOL editable;
- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier;
- (void)setEditingButtonHidden:(BOOL)hidden animated:(BOOL)animated;
@end

// The Settings app's root navigation controller.
@interface PSRootController : UINavigationController
@end

@interface PSTableCell : UITableViewCell
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier;
@property (nonatomic, retain) PSSpecifier *specifier;
- (void)setCellEnabled:(BOOL)enabled;
- (UILabel *)titleLabel;
- (UILabel *)valueLabel;
- (UIImageView *)iconImageView;
- (void)setValue:(id)value;
- (id)value;
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier;
@end

@interface PSControlTableCell : PSTableCell
@property (nonatomic, retain) UIControl *control;
@end

@interface PSSwitchTableCell : PSControlTableCell
@end

@interface PSSubtitleSwitchTableCell : PSSwitchTableCell
@end

@class PSPasscodeField;

@protocol PSPasscodeFieldDelegate <NSObject>
@optional
- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode;
@end

@interface PSPasscodeField : UIView
- (instancetype)initWithNumberOfEntryFields:(NSUInteger)numberOfEntryFields;
@property (nonatomic, assign) NSUInteger numberOfEntryFields;
@property (nonatomic, copy) NSString *stringValue;
@property (nonatomic, assign) BOOL securePasscodeEntry;
@property (nonatomic, assign) id<PSPasscodeFieldDelegate> delegate;
@end

// Views named by a group's "headerCellClass" / "footerCellClass".
@protocol PSHeaderFooterView <NSObject>
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
@optional
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView;
@end

@interface PSFooterHyperlinkView : UIView <PSHeaderFooterView>
@end

#pragma mark - Classes reached by name at run time

// AppSupport.
TESSARIN_RUNTIME_CLASS
@interface CPDistributedMessagingCenter : NSObject
+ (instancetype)centerNamed:(NSString *)name;
- (NSString *)name;
- (BOOL)sendMessageName:(NSString *)message userInfo:(NSDictionary *)userInfo;
- (NSDictionary *)sendMessageAndReceiveReplyName:(NSString *)message userInfo:(NSDictionary *)userInfo;
- (void)runServerOnCurrentThread;
- (void)stopServer;
- (void)registerForMessageName:(NSString *)message target:(id)target selector:(SEL)selector;
@end

// ManagedConfiguration.
TESSARIN_RUNTIME_CLASS
@interface MCPasscodeManager : NSObject
+ (instancetype)sharedManager;
- (BOOL)isPasscodeSet;
// Newer systems: the passcode record, its characteristics under "characteristics".
- (NSDictionary *)_privatePasscodeDictWithOutError:(NSError **)outError;
// Older systems: {"allDigits", "hasAlpha", "length"} directly.
- (NSDictionary *)_passcodeCharacteristics;
@end

// PassKit's fingerprint glyph (in a PassKit UI framework that varies by system;
// load /System/Library/Frameworks/PassKit.framework first).
TESSARIN_RUNTIME_CLASS
@interface PKGlyphView : UIView
- (instancetype)initWithStyle:(NSInteger)style;
- (void)setState:(NSInteger)state animated:(BOOL)animated completionHandler:(void (^)(void))completion;
@property (nonatomic, copy) UIColor *primaryColor;
@property (nonatomic, copy) UIColor *secondaryColor;
- (void)_setPrimaryColor:(UIColor *)color animated:(BOOL)animated;
- (void)_setSecondaryColor:(UIColor *)color animated:(BOOL)animated;
- (UIColor *)_primaryColorForStyle:(NSInteger)style mode:(NSInteger)mode;
- (UIColor *)_secondaryColorForStyle:(NSInteger)style mode:(NSInteger)mode;
@end

// The Flipswitch add-on (dlopen "/usr/lib/libflipswitch.dylib" when the class is absent).
typedef NS_ENUM(NSInteger, FSSwitchState) {
  FSSwitchStateOff = 0,
  FSSwitchStateOn = 1,
  FSSwitchStateIndeterminate = -1,
};

TESSARIN_RUNTIME_CLASS
@interface FSSwitchPanel : NSObject
+ (instancetype)sharedPanel;
@property (nonatomic, readonly, copy) NSArray *switchIdentifiers;
- (NSString *)titleForSwitchIdentifier:(NSString *)switchIdentifier;
- (UIImage *)imageOfSwitchState:(FSSwitchState)state
                   controlState:(UIControlState)controlState
            forSwitchIdentifier:(NSString *)switchIdentifier
                  usingTemplate:(NSBundle *)templateBundle;
@end

#endif
