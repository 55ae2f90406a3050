#ifndef PREFERENCES_PSSPECIFIER_H
#define PREFERENCES_PSSPECIFIER_H

#import <UIKit/UIKit.h>

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

/* Property keys of the framework. */
extern NSString *const PSIDKey;
extern NSString *const PSKeyNameKey;
extern NSString *const PSDefaultsKey;
extern NSString *const PSDefaultValueKey;
extern NSString *const PSCellClassKey;
extern NSString *const PSTableCellKey;
extern NSString *const PSControlKey;
extern NSString *const PSFooterTextGroupKey;
extern NSString *const PSHeaderFooterViewKey;
extern NSString *const PSFooterCellClassGroupKey;
extern NSString *const PSHeaderCellClassGroupKey;
extern NSString *const PSTitleKey;
extern NSString *const PSEnabledKey;
extern NSString *const PSIconImageKey;
extern NSString *const PSLazyIconLoading;
extern NSString *const PSLazyIconAppID;
extern NSString *const PSTableCellHeightKey;
extern NSString *const PSValueChangedNotificationKey;
extern NSString *const PSActionKey;
extern NSString *const PSButtonActionKey;
extern NSString *const PSControllerLoadActionKey;
extern NSString *const PSAlignmentKey;
extern NSString *const PSTargetKey;

@interface PSSpecifier : NSObject {
 @public
  id target;
  SEL getter;
  SEL setter;
  SEL action;
  Class detailControllerClass;
  PSCellType cellType;
  Class editPaneClass;
  UIKeyboardType keyboardType;
  UITextAutocapitalizationType autoCapsType;
  UITextAutocorrectionType autoCorrectionType;
  int textFieldType;
 @private
  NSString *_name;
  NSArray *_values;
  NSDictionary *_titleDict;
  NSDictionary *_shortTitleDict;
  id _userInfo;
  NSMutableDictionary *_properties;
  SEL _buttonAction;
  SEL _confirmationAction;
  SEL _confirmationCancelAction;
  SEL _controllerLoadAction;
  BOOL _showContentString;
}
+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit;
+ (instancetype)groupSpecifierWithName:(NSString *)name;
/* From iOS 13 on: on an older device's profile the class does not answer it
   (respondsToSelector: says NO). */
+ (instancetype)groupSpecifierWithHeader:(NSString *)header footer:(NSString *)footer;
+ (instancetype)emptyGroupSpecifier;
+ (instancetype)groupSpecifierWithID:(NSString *)identifier;
+ (instancetype)groupSpecifierWithID:(NSString *)identifier name:(NSString *)name;
+ (PSCellType)autoCellTypeForClass:(Class)cls;

@property (nonatomic, retain) NSString *name;
/* The "id" property; the name when there is none. Setting it sets "id". */
@property (nonatomic, retain) NSString *identifier;
@property (nonatomic, assign) id target;
@property (nonatomic, assign) SEL getter;
@property (nonatomic, assign) SEL setter;
@property (nonatomic, assign) Class detailControllerClass;
@property (nonatomic, assign) Class editPaneClass;
@property (nonatomic, assign) PSCellType cellType;
@property (nonatomic, assign) SEL buttonAction;
@property (nonatomic, assign) SEL confirmationAction;
@property (nonatomic, assign) SEL confirmationCancelAction;
@property (nonatomic, assign) SEL controllerLoadAction;
@property (nonatomic, retain) id userInfo;
@property (nonatomic, retain) NSArray *values;
@property (nonatomic, retain) NSDictionary *titleDictionary;
@property (nonatomic, retain) NSDictionary *shortTitleDictionary;
@property (nonatomic, retain) NSMutableDictionary *properties;
@property (nonatomic) BOOL showContentString;

- (id)propertyForKey:(NSString *)key;
/* A nil value removes the property. */
- (void)setProperty:(id)value forKey:(NSString *)key;
- (void)removePropertyForKey:(NSString *)key;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles;
- (void)setupIconImageWithBundle:(NSBundle *)bundle;
- (void)setupIconImageWithPath:(NSString *)path;
- (void)performGetter;
- (void)performSetterWithValue:(id)value;
@end

#endif
