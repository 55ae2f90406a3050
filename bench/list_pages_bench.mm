// The protection-list pages on a large device: the applications page's row build with 500
// applications spread over the four scanned places, next to the raw cost of opening and
// reading the same 500 Info.plists; one keystroke of its search over the 500; opening it
// and jumping to "S" through its index; the folders page with its folders of twelve apps,
// and the pictures of 200 of them.
#import <Foundation/Foundation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/SimApplications.h>
#include <Simulator/Simulator.h>
#include <benchmark/benchmark.h>

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#import "SettingsHost.h"
#include "lists/ListSearch.hpp"

namespace {

constexpr int kApplications = 500;
constexpr int kFolders = 200;

NSString *const kSources[] = {@"Applications", @"LegacyContainers", @"Binpack", @"Containers"};

// The bundle's transport keeps one notify token, registered on the device in use when it
// loaded; a process that changes device registers it again there.
void registerTransportAgain() {
  auto registerSignal = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "_Z23registerTransportSignalv"));
  if (registerSignal != nullptr) registerSignal();
}

// A device of its own, with its own SpringBoard, for the duration of one benchmark.
class LargeDevice {
 public:
  explicit LargeDevice(NSDictionary *changes) {
    previous_ = SimDeviceRoot() ? SimDeviceRoot() : "";
    NSString *base = [NSString stringWithFormat:@"%s/tessarin-bench-lists-%d", getenv("TMPDIR") ?: "/tmp", getpid()];
    root_ = [base UTF8String];
    NSMutableDictionary *profile = [NSMutableDictionary
        dictionaryWithContentsOfFile:[NSString stringWithFormat:@"%s/%s.plist", TESSARIN_PROFILES_FOR_BENCH,
                                                                SIM_DEFAULT_PROFILE]];
    [profile addEntriesFromDictionary:changes];
    NSString *profilePath = [base stringByAppendingString:@".plist"];
    profile_ = [profilePath fileSystemRepresentation];
    [profile writeToFile:profilePath atomically:YES];
    ok_ = SimDeviceCreate(root_.c_str(), [profilePath fileSystemRepresentation]) == 0;
    if (ok_) {
      SimDeviceUse(root_.c_str());
      registerTransportAgain();
      ok_ = SettingsHostInstallPackage();
      springBoard_ = SettingsHostStartSpringBoard();
    }
  }
  ~LargeDevice() {
    if (springBoard_ > 0) SimSpringBoardStop(springBoard_);
    SimDeviceUse(previous_.empty() ? NULL : previous_.c_str());
    registerTransportAgain();
    SimDeviceRemove(root_.c_str());
    unlink(profile_.c_str());
  }
  bool ok() const { return ok_; }

 private:
  std::string previous_, root_, profile_;
  pid_t springBoard_ = -1;
  bool ok_ = false;
};

NSDictionary *applicationsProfile(NSMutableArray *infoPlists) {
  NSMutableArray *installed = [NSMutableArray array], *offered = [NSMutableArray array];
  for (int i = 0; i < kApplications; i++) {
    NSString *identifier = [NSString stringWithFormat:@"com.bench.app%03d", i];
    NSString *source = kSources[i % 4];
    NSString *bundle = [NSString stringWithFormat:@"App%03d.app", i];
    NSString *container = [NSString stringWithFormat:@"C%03d", i];
    NSMutableDictionary *info = [NSMutableDictionary
        dictionaryWithObjectsAndKeys:identifier, @"CFBundleIdentifier", [NSString stringWithFormat:@"App%03d", i],
                                     @"CFBundleExecutable", nil];
    if (i % 3 != 0)
      [info setObject:[NSString stringWithFormat:@"Application %03d~iphone", i] forKey:@"CFBundleDisplayName"];
    else
      [info setObject:[NSString stringWithFormat:@"application %03d", i] forKey:@"CFBundleName"];
    NSMutableDictionary *entry = [NSMutableDictionary
        dictionaryWithObjectsAndKeys:source, @"source", bundle, @"bundle", container, @"container", info, @"info", nil];
    if (i % 10 == 0) [entry setObject:@{@"en" : @{@"CFBundleDisplayName" : @"Localised"}} forKey:@"strings"];
    [installed addObject:entry];
    [offered addObject:@{@"bundleIdentifier" : identifier, @"displayName" : identifier}];
    NSString *folder = [source isEqual:@"Applications"]       ? @"/Applications"
                       : [source isEqual:@"LegacyContainers"] ? @"/private/var/mobile/Applications"
                       : [source isEqual:@"Binpack"]          ? @"/private/var/binpack/Applications"
                                                              : @"/var/containers/Bundle/Application";
    BOOL contained = [source isEqual:@"LegacyContainers"] || [source isEqual:@"Containers"];
    [infoPlists addObject:[NSString stringWithFormat:@"%@%@/%@Info.plist", folder,
                                                     contained ? [@"/" stringByAppendingString:container] : @"",
                                                     [@"/" stringByAppendingFormat:@"%@/", bundle]]];
  }
  return @{@"installedApplications" : installed, @"apps" : offered, @"files" : @[]};
}

double seconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

// Builds a new page's rows once; gives the seconds taken and the row count.
double timeRowBuild(Class page, size_t *rows) {
  auto start = std::chrono::steady_clock::now();
  PSListController *controller = [[page alloc] init];
  *rows = [[controller specifiers] count];
  [controller release];
  return seconds(start);
}

void ApplicationsPageRows(benchmark::State &state) {
  NSMutableArray *infoPlists = [NSMutableArray array];
  LargeDevice device(applicationsProfile(infoPlists));
  if (!device.ok()) {
    state.SkipWithError("cannot make the device");
    return;
  }
  Class page = NSClassFromString(@"TessarinApplicationsController");
  double pageTotal = 0, rawTotal = 0, requestTotal = 0;
  size_t rows = 0, runs = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    const double pageSeconds = timeRowBuild(page, &rows);

    // The raw cost: open and read each Info.plist.
    auto start = std::chrono::steady_clock::now();
    size_t read = 0;
    for (NSString *path in infoPlists) {
      char host[4096];
      NSData *data = SimDevicePath([path fileSystemRepresentation], host, sizeof host)
                         ? [NSData dataWithContentsOfFile:[NSString stringWithUTF8String:host]]
                         : nil;
      id plist = [NSPropertyListSerialization propertyListWithData:data options:0 format:NULL error:NULL];
      if ([plist isKindOfClass:[NSDictionary class]]) read++;
    }
    const double rawSeconds = seconds(start);

    // The page's request alone, as it sends it.
    start = std::chrono::steady_clock::now();
    id center = [NSClassFromString(@"CPDistributedMessagingCenter") performSelector:@selector(centerNamed:)
                                                                         withObject:@"net.corvane.tessarin.center"];
    NSDictionary *reply = [center performSelector:@selector(sendMessageAndReceiveReplyName:userInfo:)
                                       withObject:@"appL"
                                       withObject:nil];
    requestTotal += seconds(start);
    if ([[reply objectForKey:@"apps"] count] != (NSUInteger)kApplications)
      state.SkipWithError("SpringBoard did not answer");
    if (read != (size_t)kApplications) state.SkipWithError("not every Info.plist was read");
    state.SetIterationTime(pageSeconds);
    pageTotal += pageSeconds;
    rawTotal += rawSeconds;
    runs++;
    [pool drain];
  }
  state.counters["rows"] = (double)rows;
  state.counters["page_ms"] = pageTotal / runs * 1e3;
  state.counters["raw_ms"] = rawTotal / runs * 1e3;
  state.counters["ratio"] = pageTotal / rawTotal;
  state.counters["request_ms"] = requestTotal / runs * 1e3;
  std::printf("applications page: %zu rows from %d applications, %.1f ms per build, of which SpringBoard's \"appL\" "
              "answer %.1f ms; reading the %d Info.plists %.1f ms; ratio %.2f, without the request %.2f "
              "(target 1.5 or less)\n",
              rows, kApplications, pageTotal / runs * 1e3, requestTotal / runs * 1e3, kApplications,
              rawTotal / runs * 1e3, pageTotal / rawTotal, (pageTotal - requestTotal) / rawTotal);
}

double median(std::vector<double> samples) {
  if (samples.empty()) return 0;
  std::sort(samples.begin(), samples.end());
  return samples[samples.size() / 2];
}

// A person typing "application 42" into the search field, key by key, then starting over:
// early keys match nearly every row, the later ones a few.
NSString *const kTyped = @"application 42";

// One keystroke of the applications page's search over 500 applications, three ways: the
// core's matching alone; the page's update (the updater told of the new text, the rows it
// shows chosen), as on a device where UIKit then draws only the rows on screen; and the page
// shown, the key typed into its field and the stand-in's table reloaded and laid out.
void ApplicationsSearchKeystroke(benchmark::State &state) {
  NSMutableArray *infoPlists = [NSMutableArray array];
  LargeDevice device(applicationsProfile(infoPlists));
  if (!device.ok()) {
    state.SkipWithError("cannot make the device");
    return;
  }
  const int way = (int)state.range(0);
  Class pageClass = NSClassFromString(@"TessarinApplicationsController");
  PSListController *page = [[[pageClass alloc] init] autorelease];
  UISearchController *search = [[[UISearchController alloc] initWithSearchResultsController:nil] autorelease];
  tessarin::lists::ListSearch core;
  if (way == 2) {
    [[SimSettingsRootController() rootListController] pushController:page animate:NO];
    [page view];
    SimRunLoopDisplayPass();
    search = [[page navigationItem] searchController];
  }
  for (PSSpecifier *row in [page specifiers])
    if ([row cellType] == PSSwitchCell) core.add([[row name] UTF8String], [[row propertyForKey:@"id"] UTF8String]);
  std::vector<double> samples;
  size_t shown = 0, typed = 0;
  for (auto _ : state) {
    typed = typed % [kTyped length] + 1;
    NSString *text = [kTyped substringToIndex:typed];
    if (typed == 1 && way == 2) SimSearchBarClear([search searchBar]);
    auto start = std::chrono::steady_clock::now();
    if (way == 0) {
      shown = core.matches([text UTF8String]).size();
    } else if (way == 1) {
      [[search searchBar] setText:text];
      [(id<UISearchResultsUpdating>)page updateSearchResultsForSearchController:search];
      shown = [[page specifiers] count];
    } else {
      SimSearchBarType([search searchBar], [text substringFromIndex:typed - 1]);
      SimRunLoopDisplayPass();
      shown = [[page specifiers] count];
    }
    const double s = seconds(start);
    benchmark::DoNotOptimize(shown);
    state.SetIterationTime(s);
    samples.push_back(s);
  }
  if (way == 2) SimSettingsReset();
  const char *const ways[] = {"the matching alone", "the page's rows",
                              "the page on screen, the stand-in's table laid out"};
  state.counters["median_ms"] = median(samples) * 1e3;
  std::printf("search keystroke over %d applications, %s: median %.3f ms, slowest %.3f ms (%zu keystrokes)\n",
              kApplications, ways[way], median(samples) * 1e3, *std::max_element(samples.begin(), samples.end()) * 1e3,
              samples.size());
}

// 500 applications under every letter, some names starting with an accent, a digit or an
// invisible mark: the page opened as Settings opens it (rows built, first layout), then a
// touch on "S" in its index and the layout of the screen it scrolls to.
NSDictionary *lettersProfile() {
  NSMutableArray *installed = [NSMutableArray array], *offered = [NSMutableArray array];
  NSArray *starts = @[
    @"A", @"\u00C4", @"B", @"C", @"D", @"E", @"\u00C9",  @"F", @"G", @"H", @"I", @"J", @"K", @"L", @"M", @"N",
    @"O", @"\u00D8", @"P", @"Q", @"R", @"S", @"\u200ES", @"T", @"U", @"V", @"W", @"X", @"Y", @"Z", @"1", @"\u4E2D"
  ];
  for (int i = 0; i < kApplications; i++) {
    NSString *identifier = [NSString stringWithFormat:@"com.bench.letters%03d", i];
    NSString *name = [NSString stringWithFormat:@"%@pp %03d", [starts objectAtIndex:i % [starts count]], i];
    NSString *source = kSources[i % 4];
    [installed addObject:@{
      @"source" : source,
      @"bundle" : [NSString stringWithFormat:@"L%03d.app", i],
      @"container" : [NSString stringWithFormat:@"L%03d", i],
      @"info" : @{@"CFBundleIdentifier" : identifier, @"CFBundleDisplayName" : name}
    }];
    [offered addObject:@{@"bundleIdentifier" : identifier, @"displayName" : name}];
  }
  return @{@"installedApplications" : installed, @"apps" : offered, @"files" : @[]};
}

void ApplicationsOpenAndJumpToS(benchmark::State &state) {
  LargeDevice device(lettersProfile());
  if (!device.ok()) {
    state.SkipWithError("cannot make the device");
    return;
  }
  Class pageClass = NSClassFromString(@"TessarinApplicationsController");
  std::vector<double> opens, jumps;
  size_t rows = 0;
  CGFloat offset = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    auto start = std::chrono::steady_clock::now();
    PSListController *page = [[[pageClass alloc] init] autorelease];
    [[SimSettingsRootController() rootListController] pushController:page animate:NO];
    [page view];
    SimRunLoopDisplayPass();
    const double open = seconds(start);
    start = std::chrono::steady_clock::now();
    if (!SimTableViewTapSectionIndex([page table], @"S")) state.SkipWithError("the page shows no index");
    SimRunLoopDisplayPass();
    const double jump = seconds(start);
    rows = [[page specifiers] count];
    offset = [[page table] contentOffset].y;
    state.SetIterationTime(open + jump);
    opens.push_back(open);
    jumps.push_back(jump);
    SimSettingsReset();
    [pool drain];
  }
  state.counters["open_ms"] = median(opens) * 1e3;
  state.counters["jump_ms"] = median(jumps) * 1e3;
  std::printf("applications page with %d applications: %zu rows with the index's headers; opening (rows and first "
              "layout) median %.1f ms, then S through the index (scroll to %.0f and its layout) median %.2f ms\n",
              kApplications, rows, median(opens) * 1e3, offset, median(jumps) * 1e3);
}

NSArray *foldersOfTwelve(int count) {
  NSMutableArray *folders = [NSMutableArray array];
  for (int i = 0; i < count; i++) {
    NSMutableArray *content = [NSMutableArray array];
    for (int j = 0; j < 12; j++)
      [content addObject:[NSString stringWithFormat:@"com.bench.app%03d", (i * 12 + j) % 500]];
    [folders addObject:@{
      @"displayName" : [NSString stringWithFormat:@"Folder %03d", i],
      @"folderType" : @(0),
      @"bundleIdentifiers" : content
    }];
  }
  return folders;
}

// The page with SpringBoard answering "fldr", its reply included.
void FoldersPageRows(benchmark::State &state) {
  const int count = (int)state.range(0);
  LargeDevice device(@{@"folders" : foldersOfTwelve(count)});
  if (!device.ok()) {
    state.SkipWithError("cannot make the device");
    return;
  }
  Class page = NSClassFromString(@"TessarinFoldersController");
  [[[page alloc] init] release];  // SpringBoard's first answer comes once it is up
  double total = 0;
  size_t rows = 0, runs = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    const double s = timeRowBuild(page, &rows);
    state.SetIterationTime(s);
    total += s;
    runs++;
    [pool drain];
  }
  state.counters["rows"] = (double)rows;
  std::printf("folders page: %zu rows from %d folders of twelve, %.1f ms per build (SpringBoard's reply included)\n",
              rows, count, total / runs * 1e3);
}

// The page's own work for 200 folders of twelve: each folder's picture, as the row build makes it.
void FolderPictures(benchmark::State &state) {
  NSArray *folders = foldersOfTwelve(kFolders);
  id controller = [[NSClassFromString(@"TessarinFoldersController") alloc] init];
  SEL make = @selector(createIconImageWithIdentifiers:);
  double total = 0;
  size_t runs = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    auto start = std::chrono::steady_clock::now();
    for (NSDictionary *folder in folders)
      benchmark::DoNotOptimize([controller performSelector:make withObject:[folder objectForKey:@"bundleIdentifiers"]]);
    const double s = seconds(start);
    state.SetIterationTime(s);
    total += s;
    runs++;
    [pool drain];
  }
  [controller release];
  std::printf("folder pictures: %d folders of twelve, %.1f ms for all\n", kFolders, total / runs * 1e3);
}

}  // namespace

BENCHMARK(ApplicationsPageRows)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ApplicationsSearchKeystroke)->Arg(0)->Iterations(280)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ApplicationsSearchKeystroke)->Arg(1)->Iterations(140)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ApplicationsSearchKeystroke)->Arg(2)->Iterations(28)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ApplicationsOpenAndJumpToS)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(FoldersPageRows)->Arg(kFolders)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(FolderPictures)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
