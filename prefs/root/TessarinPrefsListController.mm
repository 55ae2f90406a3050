#import "root/TessarinPrefsListController.h"
#import "core/Geometry.h"
#import "core/Strings.h"
#import "core/Specifiers.h"
#import "core/SpringBoardRequests.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/Endpoints.h"
#import "core/Hardware.h"
#import "core/LayoutDirection.h"
#import "core/Paths.h"
#import "core/PreferenceStore.h"
#import "core/VersionFlags.h"
#import "root/TessarinCreditsCell.h"
#import "root/TessarinTrustedWiFiWarningCell.h"
#import "wifi/TessarinWiFiManager.h"
#include "core/Names.hpp"
#include "root/RootBehaviour.hpp"
#include "root/RootRows.hpp"

#include <optional>
#include <string>
#include <vector>

uint32_t cachedLibraryVersion = 0;
BOOL springBoardEmergency = NO;

namespace {

namespace root = tessarin::root;

// The root page that last built its rows; not retained, cleared when it goes away.
TessarinPrefsListController *sharedRootPage = nil;

NSDictionary *dictionaryOrNil(id object) { return [object isKindOfClass:[NSDictionary class]] ? object : nil; }

std::optional<long long> integerEntry(NSDictionary *reply, NSString *key) {
  id value = [reply objectForKey:key];
  if (![value respondsToSelector:@selector(longLongValue)]) return std::nullopt;
  return [value longLongValue];
}

BOOL productPasscodeStored(void) { return storedPreference(&tessarin::key::kPasscode) != nil; }

// The device passcode's characteristics from the passcode manager; nothing when the
// device has no passcode (or the manager is missing).
std::optional<root::PasscodeCharacteristics> devicePasscodeCharacteristics(void) {
  Class managerClass = NSClassFromString(@"MCPasscodeManager");
  MCPasscodeManager *manager = [managerClass sharedManager];
  if (manager == nil) return std::nullopt;
  NSDictionary *characteristics = nil;
  if ([manager respondsToSelector:@selector(_privatePasscodeDictWithOutError:)]) {
    NSDictionary *record = dictionaryOrNil([manager _privatePasscodeDictWithOutError:NULL]);
    characteristics = dictionaryOrNil([record objectForKey:@"characteristics"]);
    NSDictionary *first = dictionaryOrNil([characteristics objectForKey:@"1"]);
    if (first != nil) characteristics = first;
  } else if ([manager respondsToSelector:@selector(_passcodeCharacteristics)]) {
    characteristics = dictionaryOrNil([manager _passcodeCharacteristics]);
  }
  if (characteristics == nil) return std::nullopt;
  root::PasscodeCharacteristics result;
  id allDigits = [characteristics objectForKey:@"allDigits"];
  id hasAlpha = [characteristics objectForKey:@"hasAlpha"];
  result.allDigits = [allDigits respondsToSelector:@selector(boolValue)] && [allDigits boolValue];
  result.hasAlpha = [hasAlpha respondsToSelector:@selector(boolValue)] && [hasAlpha boolValue];
  result.length = integerEntry(characteristics, @"length").value_or(0);
  return result;
}

bool classExists(std::string_view name) { return NSClassFromString(nsString(name)) != Nil; }

// The add-on probes answered from the device's files.
class DeviceFileProbe final : public root::FileProbe {
 public:
  bool exists(std::string_view path) const override { return deviceFileExists(nsString(path)) ? true : false; }
  std::string jailRoot(std::string_view path) const override { return stdString(jbroot(nsString(path))); }
};

BOOL isPad(void) { return [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad; }

// The Settings app's root navigation controller, when the application has one.
UINavigationController *settingsRootController(void) {
  UIApplication *application = [UIApplication sharedApplication];
  if (![application respondsToSelector:@selector(rootController)]) return nil;
  id controller = [application performSelector:@selector(rootController)];
  return [controller isKindOfClass:[UINavigationController class]] ? controller : nil;
}

long long deviceCornerRadius(void) {
  auto copyAnswer = (MGCopyAnswerFunction)dlsym(RTLD_DEFAULT, "MGCopyAnswer");
  if (copyAnswer == NULL) return 0;
  CFPropertyListRef answer = copyAnswer(CFSTR("DeviceCornerRadius"));
  if (answer == NULL) return 0;
  id value = (id)answer;
  long long radius = [value respondsToSelector:@selector(longLongValue)] ? [value longLongValue] : 0;
  CFRelease(answer);
  return radius;
}

// Whether SpringBoard's "apps" answer lists the application.
BOOL appsContain(id apps, NSString *bundleIdentifier) {
  if ([apps isKindOfClass:[NSDictionary class]]) return [apps objectForKey:bundleIdentifier] != nil;
  if (![apps isKindOfClass:[NSArray class]]) return NO;
  for (id app in (NSArray *)apps) {
    if ([app isEqual:bundleIdentifier]) return YES;
    if ([app isKindOfClass:[NSDictionary class]] && [[app objectForKey:@"bundleIdentifier"] isEqual:bundleIdentifier])
      return YES;
  }
  return NO;
}

std::vector<std::string> identifiersOf(NSArray *rows) {
  std::vector<std::string> identifiers;
  for (PSSpecifier *row in rows) identifiers.push_back(stdString([row identifier]));
  return identifiers;
}

void setIdentifier(PSSpecifier *specifier, std::string_view identifier) {
  NSString *text = nsString(identifier);
  [specifier setIdentifier:text];
  [specifier setProperty:text forKey:@"id"];
}

}  // namespace

@interface TessarinPrefsListController ()
- (void)performEffect:(root::Effect)effect;
- (void)setUpDeviceAuthenticationFrom:(root::SetupOrigin)origin;
- (void)pushPasscodeSettings;
- (void)presentUserPasscodeControllerNamed:(std::string_view)className;
- (void)showAlert:(const root::Alert &)alert from:(UIViewController *)presenter;
@end

@implementation TessarinPrefsListController

@synthesize headerView = _headerView;
@synthesize versionLabel = _versionLabel;
@synthesize installedApps = _installedApps;

+ (instancetype)sharedInstance {
  return sharedRootPage;
}

- (void)dealloc {
  if (sharedRootPage == self) sharedRootPage = nil;
  [_headerView release];
  [_versionLabel release];
  [_installedApps release];
  [super dealloc];
}

#pragma mark - Rows

- (NSArray *)specifiers {
  sharedRootPage = self;
  if (_specifiers != nil) return _specifiers;
  if (PSSpecifier *notice = [self noticeGroup]) {
    _specifiers = [[NSArray alloc] initWithObjects:notice, nil];
    return _specifiers;
  }

  root::RootPageFacts facts = [self settingsFacts];
  NSArray *loaded = [self loadedRows];
  [self warnWhenSpringBoardHasGone];
  [self addDeviceFacts:&facts];
  const root::RootRowsPlan plan = planRootRows(identifiersOf(loaded), facts, DeviceFileProbe(), classExists);

  NSMutableArray *rows = [NSMutableArray array];
  for (const root::PlannedRow &planned : plan.rows) {
    PSSpecifier *row = [self rowFor:planned of:plan loaded:loaded];
    if (row == nil) continue;
    if (planned.disabled) [row setProperty:@(NO) forKey:@"enabled"];
    [rows addObject:row];
  }

  // Read as SpringBoard reads it; the rows are the same either way.
  (void)storedPreference(&tessarin::key::kEnabled);

  _specifiers = [rows copy];
  return _specifiers;
}

// SpringBoard's half must answer, on a supported system, before anything else shows: the
// one group that says why not, or nil.
- (PSSpecifier *)noticeGroup {
  if (cachedLibraryVersion == 0) {
    std::optional<long long> version = integerEntry(askSpringBoard(tessarin::message::kLibraryVersion), @"dlbv");
    cachedLibraryVersion = (uint32_t)version.value_or(0);
  }
  const bool supported = tessarin::isSupportedSystem(stdString(systemVersionString()));
  std::optional<tessarin::LocalText> footer = root::singleGroupFooter(cachedLibraryVersion, supported);
  if (!footer) return nil;
  PSSpecifier *group = [PSSpecifier groupSpecifierWithName:nil];
  [group setProperty:localizedText(*footer) forKey:@"footerText"];
  return group;
}

// What the product's settings say: biometrics set up (SpringBoard's answer) and a passcode stored.
- (root::RootPageFacts)settingsFacts {
  root::RootPageFacts facts;
  facts.biometricsSet =
      root::biometricsSet(integerEntry(askSpringBoard(tessarin::message::kBiometricsEnrolled), @"idsn"));
  facts.productPasscodeSet = productPasscodeStored();
  return facts;
}

// The rows of the page's plist, each named from the bundle's table by its identifier.
- (NSArray *)loadedRows {
  NSArray *loaded = [self loadSpecifiersFromPlistName:nsString(root::kRowsPlistName) target:self];
  if (![loaded isKindOfClass:[NSArray class]]) return [NSArray array];
  NSBundle *bundle = tessarinBundle();
  for (PSSpecifier *specifier in loaded) {
    NSString *identifier = [specifier identifier];
    if (identifier != nil && bundle != nil)
      [specifier setName:[bundle localizedStringForKey:identifier value:[specifier name] table:nil]];
    localizeSubtitle(specifier, nsString(root::kRowsPlistName));
  }
  return loaded;
}

// Asked again on every build: a SpringBoard that went away since the first answer is told.
- (void)warnWhenSpringBoardHasGone {
  NSDictionary *again = askSpringBoard(tessarin::message::kLibraryVersion);
  if ([again objectForKey:@"dlbv"] != nil) return;
  springBoardEmergency = YES;
  [self showAlert:root::noSpringBoardAlert() from:self];
}

// What the device is and where it is: the status rows and the device-authentication row
// follow these.
- (void)addDeviceFacts:(root::RootPageFacts *)facts {
  facts->gracePeriod = gracePeriodIsActive();
  facts->trustedNetwork = [[TessarinWiFiManager sharedInstance] isOnTrustedNetwork];
  const BOOL sensor = iPhone64Bit();
  facts->device = root::deviceFacts(sensor, hasPearl(), isPad(), systemVersion);
  if (sensor) facts->devicePasscode = devicePasscodeCharacteristics();
}

// The one mapping from the plan's kinds of row to rows.
- (PSSpecifier *)rowFor:(const root::PlannedRow &)planned of:(const root::RootRowsPlan &)plan loaded:(NSArray *)loaded {
  switch (planned.kind) {
    case root::PlannedRowKind::Loaded:
      return [self loadedRow:[loaded objectAtIndex:planned.loadedIndex] as:planned.action];
    case root::PlannedRowKind::WarningGroup: {
      PSSpecifier *group = [PSSpecifier emptyGroupSpecifier];
      setIdentifier(group, root::kTrustedWarningGroupId);
      return group;
    }
    case root::PlannedRowKind::Warning:
      return [self warningRow:*plan.warning];
    case root::PlannedRowKind::DeviceAuthGroup:
    case root::PlannedRowKind::CreditsGroup:
      return [PSSpecifier emptyGroupSpecifier];
    case root::PlannedRowKind::DeviceAuth:
      return [self deviceAuthenticationRow:*plan.deviceAuth];
    case root::PlannedRowKind::Credits:
      return [self creditsRow];
    case root::PlannedRowKind::MoreAppsGroup:
      return [self moreAppsGroup];
  }
  return nil;
}

- (PSSpecifier *)loadedRow:(PSSpecifier *)row as:(root::RowAction)action {
  if (action == root::RowAction::KeepWithoutFooter) [row removePropertyForKey:@"footerText"];
  if (action == root::RowAction::KeepAsResetTarget) {
    TessarinPrefsListController *page = self;
    [row setProperty:[NSValue value:&page withObjCType:@encode(id)] forKey:@"target"];
    [row setTarget:self];
    if ([row buttonAction] == NULL) [row setButtonAction:@selector(resetAllTessarinSettings:)];
  }
  return row;
}

// The status row: protection is off for the grace period or on a trusted network.
- (PSSpecifier *)warningRow:(const root::WarningRow &)warning {
  PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:localizedText(warning.title)
                                                    target:self
                                                       set:NULL
                                                       get:NULL
                                                    detail:Nil
                                                      cell:(PSCellType)root::kStaticTextCellType
                                                      edit:Nil];
  [row setProperty:[TessarinTrustedWiFiWarningCell class] forKey:@"cellClass"];
  [row setProperty:@(warning.height) forKey:@"height"];
  setIdentifier(row, root::kTrustedWarningId);
  return row;
}

// Face ID or Touch ID settings: the system's own page, or first the device passcode check.
- (PSSpecifier *)deviceAuthenticationRow:(const root::DeviceAuthRow &)auth {
  Class detail = auth.detailClass.empty() ? Nil : NSClassFromString(nsString(auth.detailClass));
  PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:localizedText(auth.name)
                                                    target:self
                                                       set:NULL
                                                       get:NULL
                                                    detail:detail
                                                      cell:(PSCellType)root::kDeviceAuthCellType
                                                      edit:Nil];
  if (!auth.loadAction.empty()) [row setControllerLoadAction:NSSelectorFromString(nsString(auth.loadAction))];
  return row;
}

- (PSSpecifier *)creditsRow {
  PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:localizedText(root::kCreditsText)
                                                    target:self
                                                       set:NULL
                                                       get:NULL
                                                    detail:Nil
                                                      cell:(PSCellType)root::kCreditsCellType
                                                      edit:Nil];
  [row setProperty:[TessarinCreditsCell class] forKey:@"cellClass"];
  [row setProperty:@(root::kCreditsAlignment) forKey:@"alignment"];
  return row;
}

// The group whose footer view opens the maker's catalogue.
- (PSSpecifier *)moreAppsGroup {
  PSSpecifier *group = footerGroup(localizedText(root::kMoreAppsFooter));
  [group setTarget:self];
  [group setButtonAction:NSSelectorFromString(nsString(root::kMoreAppsAction))];
  [group setProperty:nsString(root::kMoreAppsFooterCellClass) forKey:@"footerCellClass"];
  [group setProperty:@(root::kMoreAppsHeight) forKey:@"height"];
  // The footer view shows this text.
  [group setProperty:localizedText(root::kMoreAppsFooter) forKey:nsString(tessarin::root::label_view::kTextProperty)];
  return group;
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
  [super setPreferenceValue:value specifier:specifier];
  if ([[specifier identifier] isEqualToString:nsString(root::kKeepSessionId)]) [self reloadSpecifiers];
}

#pragma mark - View

- (void)loadView {
  [super loadView];

  NSDictionary *idsnReply = askSpringBoard(tessarin::message::kBiometricsEnrolled);
  NSDictionary *appsReply = askSpringBoard(tessarin::message::kApplications);
  [self setInstalledApps:[appsReply objectForKey:@"apps"]];

  root::FirstRunFacts facts;
  facts.idsnReplied = idsnReply != nil;
  facts.idsnValue = integerEntry(idsnReply, @"idsn").value_or(0);
  facts.appsPresent = [self installedApps] != nil;
  facts.productPasscodeStored = productPasscodeStored();
  facts.biometricSensor = iPhone64Bit();
  facts.faceID = hasPearl();
  if (std::optional<root::Alert> prompt = firstRunPrompt(facts)) [self showAlert:*prompt from:self];

  const CGFloat width = [[self view] frame].size.width;
  const root::Rect headerFrame = root::header::headerFrame(width);
  const root::Rect labelFrame = root::header::versionLabelFrame(width, isRightToLeft([self view]));
  UIView *headerView = [[UIView alloc] initWithFrame:cgRect(headerFrame)];
  [headerView setClipsToBounds:root::header::kClipsToBounds];
  UILabel *label = [[UILabel alloc] initWithFrame:cgRect(labelFrame)];
  [label setFont:[UIFont systemFontOfSize:root::header::kFontSize]];
  [label setTextAlignment:(NSTextAlignment)root::header::alignment(isRightToLeft([self view]))];
  [label setTextColor:[UIColor lightGrayColor]];
  const std::string version = root::versionText(cachedLibraryVersion);
  if (!version.empty()) [label setText:nsString(version)];
  [headerView addSubview:label];
  [self setHeaderView:headerView];
  [self setVersionLabel:label];
  [[self table] setTableHeaderView:headerView];
  [label release];
  [headerView release];
}

- (void)viewDidLayoutSubviews {
  [super viewDidLayoutSubviews];
  const root::Rect frame = root::header::versionLabelFrame([[self view] frame].size.width, isRightToLeft([self view]));
  [_versionLabel setFrame:cgRect(frame)];
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
}

#pragma mark - Actions

- (void)resetAllTessarinSettings:(PSSpecifier *)specifier {
  [self showAlert:root::resetQuestionAlert() from:self];
}

- (void)loadUserPasswordController {
  [self presentUserPasscodeControllerNamed:root::kUserPasscodeControllerClass];
}

- (void)loadUserComplexPasswordController {
  [self presentUserPasscodeControllerNamed:root::kUserComplexPasscodeControllerClass];
}

- (void)infoTapped:(id)sender {
  // Empty options: the page opens in the browser, as a plain link would.
  [[UIApplication sharedApplication] openURL:[NSURL URLWithString:kCatalogueURL]
                                     options:[NSDictionary dictionary]
                           completionHandler:nil];
}

- (void)alertView:(id)alertView clickedButtonAtIndex:(NSInteger)buttonIndex {
  const root::Effect effect = root::alertViewButtonEffect(iPhone64Bit(), buttonIndex);
  if (effect == root::Effect::SetUpDeviceAuthentication)
    [self setUpDeviceAuthenticationFrom:root::SetupOrigin::AlertViewButton];
  else
    [self performEffect:effect];
}

#pragma mark - Helpers

- (void)showAlert:(const root::Alert &)alert from:(UIViewController *)presenter {
  NSMutableArray *actions = [NSMutableArray array];
  for (const root::AlertButton &button : alert.buttons) {
    const root::Effect effect = button.effect;
    void (^handler)(UIAlertAction *) = nil;
    if (effect != root::Effect::Nothing) {
      handler = ^(UIAlertAction *action) { [self performEffect:effect]; };
    }
    UIAlertActionStyle style =
        button.style == root::ActionStyle::Cancel ? UIAlertActionStyleCancel : UIAlertActionStyleDefault;
    [actions addObject:[UIAlertAction actionWithTitle:localizedText(button.title) style:style handler:handler]];
  }
  showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(
      localizedText(alert.title), localizedText(alert.message), actions, presenter, UIAlertControllerStyleAlert);
}

- (void)performEffect:(root::Effect)effect {
  switch (effect) {
    case root::Effect::Nothing:
      break;
    case root::Effect::SetUpDeviceAuthentication:
      dispatch_async(dispatch_get_main_queue(), ^{ [self setUpDeviceAuthenticationFrom:root::SetupOrigin::Prompt]; });
      break;
    case root::Effect::PushPasscodeSettings:
      dispatch_async(dispatch_get_main_queue(), ^{ [self pushPasscodeSettings]; });
      break;
    case root::Effect::ResetAllSettings:
      resetAllPreferences();
      [self showAlert:root::resetDoneAlert() from:self];
      break;
    case root::Effect::LeaveProductSettings: {
      UIViewController *parent = [[self navigationController] parentViewController];
      if ([parent respondsToSelector:@selector(popViewControllerAnimated:)])
        [(UINavigationController *)parent popViewControllerAnimated:YES];
      break;
    }
  }
}

- (void)pushPasscodeSettings {
  Class pageClass = NSClassFromString(nsString(root::kPasscodeSettingsControllerClass));
  UINavigationController *root = settingsRootController();
  if (pageClass == Nil || root == nil) return;
  UIViewController *page = [[pageClass alloc] init];
  [root pushViewController:page animated:YES];
  [page release];
}

- (void)presentUserPasscodeControllerNamed:(std::string_view)className {
  Class pageClass = NSClassFromString(nsString(className));
  if (pageClass == Nil) return;
  UIViewController *page = [[pageClass alloc] init];
  UINavigationController *navigation = [[UINavigationController alloc] init];
  [navigation addChildViewController:page];
  [self presentViewController:navigation animated:YES completion:nil];
  [navigation release];
  [page release];
}

- (void)setUpDeviceAuthenticationFrom:(root::SetupOrigin)origin {
  root::SetupFacts facts;
  facts.faceID = hasPearl();
  facts.devicePasscode = devicePasscodeCharacteristics();
  facts.iOS14 = systemVersion.iOS14;
  facts.iOS16 = systemVersion.iOS16;
  facts.deviceCornerRadius = deviceCornerRadius();
  facts.loaderAppInstalled = appsContain([self installedApps], nsString(root::kLoaderAppId));
  const root::SetupDecision decision = setupDecision(facts, origin);

  if (!decision.userPasscodeControllerClass.empty()) {
    [self presentUserPasscodeControllerNamed:decision.userPasscodeControllerClass];
    return;
  }

  UIViewController *systemPage = nil;
  for (std::string_view className : decision.systemPageClasses) {
    Class pageClass = NSClassFromString(nsString(className));
    if (pageClass == Nil || ![pageClass instancesRespondToSelector:@selector(initForContentSize:)]) continue;
    systemPage = [[[pageClass alloc] initForContentSize:CGSizeZero] autorelease];
    if (systemPage != nil) break;
  }
  if (decision.pushSystemPage && systemPage != nil)
    [settingsRootController() pushViewController:systemPage animated:YES];
  if (decision.notice) {
    UIViewController *presenter = decision.noticeFrom == root::NoticeFrom::PushedPage && systemPage != nil
                                      ? systemPage
                                      : (UIViewController *)self;
    [self showAlert:*decision.notice from:presenter];
  }
}

@end
