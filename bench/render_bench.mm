// One picture of the Settings app's screen on the default device (an iPhone 14 Pro: 393 x 852
// points at 3x, the product's root page): the whole view tree drawn into a fresh bitmap
// (target: under 150 ms, the median of the repetitions), and writing it as a PNG file.
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <chrono>
#include <cstdio>

#import "SettingsConsole.h"
#import "SettingsHost.h"
#import "SimRender.h"

namespace {

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The Settings app with the product's root page open, made once for the process.
bool openRootPage() {
  static int state = 0;
  if (state == 0) {
    state = -1;
    NSBundle *bundle = SettingsHostLoadPreferenceBundle();
    if (bundle != nil && SettingsHostBuildSettingsApp(bundle)) {
      SettingsConsole *console = [[SettingsConsole alloc] init];  // kept for the process
      if ([console openEntryNamed:@"Tessarin"]) state = 1;
    }
  }
  return state == 1;
}

void ScreenPicture(benchmark::State &state) {
  if (!openRootPage()) {
    state.SkipWithError("the product's root page did not open");
    return;
  }
  [[SimRenderSettingsScreen(NO) retain] release];  // fonts found and loaded once, as on a device
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    auto start = std::chrono::steady_clock::now();
    SimScreenPicture *picture = SimRenderSettingsScreen(NO);
    state.SetIterationTime(secondsSince(start));
    benchmark::DoNotOptimize(picture);
    state.counters["pixels"] = (double)([picture pixelWidth] * [picture pixelHeight]);
    [pool drain];
  }
}

void ScreenPictureToPNG(benchmark::State &state) {
  if (!openRootPage()) {
    state.SkipWithError("the product's root page did not open");
    return;
  }
  SimScreenPicture *picture = [SimRenderSettingsScreen(NO) retain];
  NSString *path = [NSString stringWithFormat:@"%s/tessarin-bench-screen-%d.png", getenv("TMPDIR") ?: "/tmp", getpid()];
  for (auto _ : state) {
    auto start = std::chrono::steady_clock::now();
    bool written = [picture writePNGToFile:path scale:0];
    state.SetIterationTime(secondsSince(start));
    if (!written) state.SkipWithError("the PNG could not be written");
  }
  unlink([path fileSystemRepresentation]);
  [picture release];
}

}  // namespace

BENCHMARK(ScreenPicture)
    ->Iterations(1)
    ->Repetitions(25)
    ->DisplayAggregatesOnly(true)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ScreenPictureToPNG)
    ->Iterations(1)
    ->Repetitions(9)
    ->DisplayAggregatesOnly(true)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
