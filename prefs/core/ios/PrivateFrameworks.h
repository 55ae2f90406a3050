/*
 * Private iOS API that the bundle uses, declared once, for the device build.
 *
 * Imported only by core/PlatformAPI.h, after Foundation and UIKit. Signatures are the
 * system's own; only the members the bundle calls are declared.
 *
 * Two kinds of classes:
 * - Preferences.framework classes (PS...): the bundle links that framework and
 *   subclasses several of them, so they are ordinary declarations.
 * - Classes of frameworks the bundle does not link (AppSupport, ManagedConfiguration,
 *   PassKit's glyph view, the Flipswitch add-on): declared as weak imports
 *   (TESSARIN_RUNTIME_CLASS). Reach them with NSClassFromString(@"...") and message
 *   the result; the declarations are there so those messages type-check. The
 *   Makefile lets dyld resolve any direct reference that slips through.
 * The system's biometric settings pages (PSUIPearlPasscodeController,
 * PSMesaSettingsController, PSTouchIDPasscodeController, PSUITouchIDPasscodeController),
 * the Settings root list (PrefsListController) and PSUIAppleIDAccountDetailsLinkCell
 * exist only on some systems and are used by name only: they are deliberately not
 * declared here.
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
@property (nonatomic, retain) NSString *identifier;
@property (nonatomic, assign) id target;
@property (nonatomic, assign) PSCellType cellType;
@property (nonatomic, assign) Class detailControllerClass;
@property (nonatomic, assign) Class editPaneClass;
@property (nonatomic, assign) SEL buttonAction;
@property (nonatomic, assign) SEL controllerLoadAction;
@property (nonatomic, retain) NSMutableDictionary *properties;

- (void)setProperty:(id)property forKey:(NSString *)key;
- (id)propertyForKey:(NSString *)key;
- (void)removePropertyForKey:(NSString *)key;
@end

@interface PSViewController : UIViewController
- (instancetype)initForContentSize:(CGSize)contentSize;
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, assign) id parentController;
@property (nonatomic, assign) id rootController;
@end

@interface PSListController : PSViewController <UITableViewDelegate, UITableViewDataSource> {
  // The page's row cache: subclasses fill it in -specifiers and return it.
  NSMutableArray *_specifiers;
}
- (NSMutableArray *)specifiers;
- (void)setSpecifiers:(NSArray *)specifiers;
- (NSMutableArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target;
- (PSSpecifier *)specifierForID:(NSString *)identifier;
- (PSSpecifier *)specifierAtIndex:(NSInteger)index;
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifiers;
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index;
- (void)removeSpecifier:(PSSpecifier *)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;
- (id)readPreferenceValue:(PSSpecifier *)specifier;
- (void)pushController:(UIViewController *)controller animate:(BOOL)animate;
- (UITableViewCell *)cachedCellForSpecifier:(PSSpecifier *)specifier;
- (UITableView *)table;
- (NSBundle *)bundle;
@end

@interface PSEditableListController : PSListController
- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier;
- (BOOL)editable;
- (void)setEditable:(BOOL)editable;
@end

@interface PSTableCell : UITableViewCell
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier;
@property (nonatomic, retain) PSSpecifier *specifier;
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
- (void)passcodeFieldDidBeginEditing:(PSPasscodeField *)field;
- (void)passcodeFieldDidEndEditing:(PSPasscodeField *)field;
@end

@interface PSPasscodeField : UIView
- (instancetype)initWithNumberOfEntryFields:(NSUInteger)numberOfEntryFields;
@property (nonatomic, assign) NSUInteger numberOfEntryFields;
@property (nonatomic, assign) BOOL securePasscodeEntry;
@property (nonatomic, copy) NSString *stringValue;
@property (nonatomic, assign) id<PSPasscodeFieldDelegate> delegate;
@end

// Views named by a group's "headerCellClass" / "footerCellClass".
@protocol PSHeaderFooterView <NSObject>
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
@optional
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView;
@end

@interface PSFooterHyperlinkView : UITableViewHeaderFooterView <PSHeaderFooterView>
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

#pragma mark - Private members of public classes

// In the Settings app the application object is its own UIApplication subclass.
@interface UIApplication (TessarinSettingsApp)
// The Settings app's root navigation controller.
- (UINavigationController *)rootController;
@end

@interface UINavigationController (TessarinSettingsApp)
// On the Settings app's root controller: the top-level list of Settings panes.
- (PSListController *)rootListController;
@end

@interface UIDevice (TessarinPrivate)
- (void)_playSystemSound:(unsigned int)soundID;
@end

@interface UIImage (TessarinPrivate)
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle;
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format;
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier
                                               format:(int)format
                                                scale:(CGFloat)scale;
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed;
@end

#endif
