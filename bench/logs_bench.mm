// The crash-log pages with a full log directory: building the list's rows for 1,000
// logs (one display frame, 16 ms, is the target) and opening the viewer on a 5 MB and
// a 32 MB log (the viewer reads only a log's head, so both should cost the same).
#import <Foundation/Foundation.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/Simulator.h>
#include <benchmark/benchmark.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits.h>
#include <vector>

namespace {

NSString *const kLogDirectory = @"/var/mobile/Library/Logs/Tessarin";
constexpr double kFrameSeconds = 0.016;

double percentile(std::vector<double> samples, double fraction) {
  if (samples.empty()) return 0;
  std::sort(samples.begin(), samples.end());
  size_t index = (size_t)(fraction * (double)(samples.size() - 1) + 0.5);
  return samples[std::min(index, samples.size() - 1)];
}

// An empty log directory on the device in use; its file-system path.
NSString *freshLogDirectory() {
  char path[PATH_MAX];
  if (SimDevicePath([kLogDirectory fileSystemRepresentation], path, sizeof path) == NULL) return nil;
  NSString *directory = [NSString stringWithUTF8String:path];
  [[NSFileManager defaultManager] removeItemAtPath:directory error:NULL];
  [[NSFileManager defaultManager] createDirectoryAtPath:directory
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  return directory;
}

// `count` logs of distinct seconds, each naming its process, and the latest link.
void writeLogs(NSString *directory, int count) {
  static const char *const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  NSString *newest = nil;
  for (int i = 0; i < count; i++) {
    NSString *name = [NSString stringWithFormat:@"Tessarin-%02d-%s-20%02d-%02d-%02d-%02d.log", 1 + i % 28,
                                                months[i % 12], 10 + i % 15, i % 24, i % 60, (i / 60) % 60];
    NSString *text = [NSString stringWithFormat:@"Incident Identifier: %04X\nProcess: SpringBoard [%d]\n"
                                                @"Exception Type: NSInvalidArgumentException\nThread 0 Crashed:\n",
                                                i, 50 + i];
    [text writeToFile:[directory stringByAppendingPathComponent:name]
           atomically:NO
             encoding:NSUTF8StringEncoding
                error:NULL];
    newest = name;
  }
  if (newest != nil) {
    [[NSFileManager defaultManager]
        createSymbolicLinkAtPath:[directory stringByAppendingPathComponent:@"Latest-Tessarin.log"]
                     pathContent:[kLogDirectory stringByAppendingPathComponent:newest]];
  }
}

void report(benchmark::State &state, const char *what, const std::vector<double> &samples) {
  double median = percentile(samples, 0.5), p99 = percentile(samples, 0.99);
  state.counters["median_ms"] = median * 1e3;
  state.counters["p99_ms"] = p99 * 1e3;
  state.counters["median_of_frame"] = median / kFrameSeconds;
  std::printf("%s: %zu runs, median %.3f ms (%.2f of a 16 ms frame), p99 %.3f ms\n", what, samples.size(), median * 1e3,
              median / kFrameSeconds, p99 * 1e3);
}

void logsPageRows(benchmark::State &state) {
  const int count = (int)state.range(0);
  writeLogs(freshLogDirectory(), count);
  Class pageClass = NSClassFromString(@"TessarinDebugLogsController");
  std::vector<double> samples;
  size_t rows = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    PSListController *page = [[pageClass alloc] init];
    auto start = std::chrono::steady_clock::now();
    rows = [[page specifiers] count];
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    state.SetIterationTime(seconds);
    samples.push_back(seconds);
    [page release];
    [pool drain];
  }
  state.counters["rows"] = (double)rows;
  report(state, "logs page rows for 1,000 logs", samples);
}

void viewerOpening(benchmark::State &state) {
  const size_t bytes = (size_t)state.range(0) * 1024 * 1024;
  NSString *directory = freshLogDirectory();
  NSString *name = @"Tessarin-05-Mar-2024-14-07-09.log";
  NSMutableData *log = [NSMutableData dataWithCapacity:bytes];
  NSData *line = [@"Thread 3: 0x1a2b3c4d -[TessarinLocker lockApplication:] + 112 (TessarinLocker.m:418)\n"
      dataUsingEncoding:NSUTF8StringEncoding];
  while ([log length] + [line length] <= bytes) [log appendData:line];
  [log writeToFile:[directory stringByAppendingPathComponent:name] atomically:NO];

  PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                    target:nil
                                                       set:NULL
                                                       get:NULL
                                                    detail:NSClassFromString(@"TessarinCrashLogViewer")
                                                      cell:PSLinkCell
                                                      edit:Nil];
  [row setProperty:name forKey:@"logFile"];
  std::vector<double> samples;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    PSViewController *viewer = [[[row detailControllerClass] alloc] init];
    [viewer setSpecifier:row];
    auto start = std::chrono::steady_clock::now();
    [viewer view];
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    state.SetIterationTime(seconds);
    samples.push_back(seconds);
    [viewer release];
    [pool drain];
  }
  char what[64];
  std::snprintf(what, sizeof what, "log viewer on a %d MB log", (int)state.range(0));
  report(state, what, samples);
}

}  // namespace

BENCHMARK(logsPageRows)->Arg(1000)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(viewerOpening)->Arg(5)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
// A log that grew without bound: what opening it costs.
BENCHMARK(viewerOpening)->Arg(32)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
