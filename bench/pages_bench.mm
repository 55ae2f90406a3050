// Every page of the product opened for the first time on the default profile, as Settings
// opens it: the Settings app with its list of panes, the page made with the row that links
// to it, shown as the pane's page, its rows built and its view laid out by the display pass
// that follows (the cells of the rows on screen made). One display frame, 16 ms, is the
// target for each.
#import <Foundation/Foundation.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits.h>
#include <vector>

#import "SettingsHost.h"

namespace {

constexpr double kFrameSeconds = 0.016;

double median(std::vector<double> samples) {
  if (samples.empty()) return 0;
  std::sort(samples.begin(), samples.end());
  return samples[samples.size() / 2];
}

// The row of the root page (or of the passcode options page, or of the logs page) that
// opens pages of `pageClass`, as Settings hands it to the page it opens; nil for pages no row
// opens on this device.
PSSpecifier *linkTo(Class pageClass) {
  for (NSString *parentName in
       @[ @"TessarinPrefsListController", @"TessarinPasscodeSettingsController", @"TessarinDebugLogsController" ]) {
    PSListController *parent = [[[NSClassFromString(parentName) alloc] init] autorelease];
    for (PSSpecifier *row in [parent specifiers])
      if ([row detailControllerClass] == pageClass) return row;
  }
  return nil;
}

// A crash log for the log viewer to open.
void writeCrashLog() {
  char path[PATH_MAX];
  if (SimDevicePath("/var/mobile/Library/Logs/Tessarin", path, sizeof path) == NULL) return;
  NSString *directory = [NSString stringWithUTF8String:path];
  [[NSFileManager defaultManager] createDirectoryAtPath:directory
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  [@"Incident Identifier: 0001\nProcess: SpringBoard [50]\nException Type: NSInvalidArgumentException\n"
      writeToFile:[directory stringByAppendingPathComponent:@"Tessarin-05-Mar-2024-14-07-09.log"]
       atomically:NO
         encoding:NSUTF8StringEncoding
            error:NULL];
}

void firstOpen(benchmark::State &state, NSString *className) {
  Class pageClass = NSClassFromString(className);
  if (pageClass == Nil) {
    state.SkipWithError("no such page in the bundle");
    return;
  }
  writeCrashLog();
  PSSpecifier *link = [[linkTo(pageClass) retain] autorelease];
  if ([className isEqual:@"TessarinCrashLogViewer"] && link == nil) state.SkipWithError("no log to open");
  NSBundle *bundle = SettingsHostLoadPreferenceBundle();
  SimRunLoopRunFor(0.05);  // SpringBoard's first answers are in before timing starts
  std::vector<double> samples;
  size_t rows = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    if (!SettingsHostBuildSettingsApp(bundle)) state.SkipWithError("no Settings app");
    auto start = std::chrono::steady_clock::now();
    UIViewController *page = [[[pageClass alloc] init] autorelease];
    if (link != nil && [page isKindOfClass:[PSViewController class]]) [(PSViewController *)page setSpecifier:link];
    [[SimSettingsRootController() rootListController] pushController:page animate:NO];
    [page view];
    SimRunLoopDisplayPass();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if ([page isKindOfClass:[PSListController class]]) rows = [[(PSListController *)page specifiers] count];
    state.SetIterationTime(seconds);
    samples.push_back(seconds);
    SimSettingsReset();
    SimRunLoopRunFor(0.01);
    [pool drain];
  }
  const double m = median(samples);
  state.counters["median_ms"] = m * 1e3;
  state.counters["of_frame"] = m / kFrameSeconds;
  state.counters["rows"] = (double)rows;
  std::printf("first open of %s: %zu rows, median %.2f ms (%.2f of a 16 ms frame)\n", [className UTF8String], rows,
              m * 1e3, m / kFrameSeconds);
}

}  // namespace

#define PAGE(name) \
  BENCHMARK_CAPTURE(firstOpen, name, @ #name)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond)
PAGE(TessarinPrefsListController);
PAGE(TessarinApplicationsController);
PAGE(TessarinAppNotificationsController);
PAGE(TessarinFoldersController);
PAGE(TessarinFlipswitchController);
PAGE(TessarinCCItemsController);
PAGE(TessarinCCSettingsItemsController);
PAGE(TessarinProtectedSpecsController);
PAGE(TessarinInCallProtectionListController);
PAGE(TessarinPowerDownListController);
PAGE(TessarinWiFiController);
PAGE(TessarinPasscodeSettingsController);
PAGE(TessarinPasscodeController);
PAGE(TessarinChangePasscodeController);
PAGE(TessarinRemovePasscodeController);
PAGE(TessarinUserPasscodeController);
PAGE(TessarinUserComplexPasscodeController);
PAGE(TessarinButtonController);
PAGE(TessarinHapticController);
PAGE(TessarinDelayController);
PAGE(TessarinAlertTitleController);
PAGE(TessarinDebugLogsController);
PAGE(TessarinCrashLogViewer);
