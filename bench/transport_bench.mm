// Request/reply round trips through the bundle's transport with the simulated
// SpringBoard answering, against the 0.7 s budget of one request.
#import <Foundation/Foundation.h>
#import <AppSupport/CPDistributedMessagingCenter.h>
#include <Simulator/Simulator.h>
#include <benchmark/benchmark.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>
#import "SettingsHost.h"

namespace {

constexpr double kBudgetSeconds = 0.7;

double percentile(std::vector<double> samples, double fraction) {
  if (samples.empty()) return 0;
  std::sort(samples.begin(), samples.end());
  size_t index = (size_t)(fraction * (double)(samples.size() - 1) + 0.5);
  return samples[std::min(index, samples.size() - 1)];
}

void roundTrip(benchmark::State &state, NSString *message) {
  CPDistributedMessagingCenter *center = [CPDistributedMessagingCenter centerNamed:@"net.corvane.tessarin.center"];
  std::vector<double> latencies;
  latencies.reserve((size_t)state.max_iterations);
  size_t missing = 0;
  for (auto _ : state) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    auto start = std::chrono::steady_clock::now();
    NSDictionary *reply = [center sendMessageAndReceiveReplyName:message userInfo:nil];
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    state.SetIterationTime(seconds);
    latencies.push_back(seconds);
    if (reply == nil) missing++;
    [pool drain];
  }
  double median = percentile(latencies, 0.5), p99 = percentile(latencies, 0.99);
  state.counters["median_ms"] = median * 1e3;
  state.counters["p99_ms"] = p99 * 1e3;
  state.counters["p99_of_budget"] = p99 / kBudgetSeconds;
  state.counters["missing"] = (double)missing;
  std::printf(
      "%s: %zu round trips, median %.3f ms (%.4f of the 0.7 s budget), p99 %.3f ms (%.4f of it), %zu without reply\n",
      [message UTF8String], latencies.size(), median * 1e3, median / kBudgetSeconds, p99 * 1e3, p99 / kBudgetSeconds,
      missing);
}

}  // namespace

BENCHMARK_CAPTURE(roundTrip, dlbv, @"dlbv")->Iterations(1000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(roundTrip, appL, @"appL")->Iterations(1000)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if (SimDeviceCreateTemporary(SIM_DEFAULT_PROFILE) == NULL || !SettingsHostInstallPackage() ||
      SettingsHostLoadPreferenceBundle() == nil) {
    std::fprintf(stderr, "transport bench: cannot set up the simulated device\n");
    return 1;
  }
  pid_t springBoard = SettingsHostStartSpringBoard();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  SimSpringBoardStop(springBoard);
  [pool drain];
  return 0;
}
