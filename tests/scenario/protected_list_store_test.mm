// The protected-list switch as the bundle performs it for every list page: what it
// leaves on disk under the list's key and how often it announces the change.
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#import "BundleFixture.h"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"

namespace {

using SwitchItem = void (*)(id, BOOL, const tessarin::PreferenceKey *);
using IsProtected = BOOL (*)(id, const tessarin::PreferenceKey *);
using SetValue = void (*)(id, const char *);

}  // namespace

class ProtectedListStoreTest : public BundleTest {};

TEST_F(ProtectedListStoreTest, EachSwitchStoresAsTheRuleSaysAndPostsOnce) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto flip = BundleSymbol<SwitchItem>("switchProtectedItem");
  auto contains = BundleSymbol<IsProtected>("isProtectedItem");
  auto set = BundleSymbol<SetValue>("setPrefsValueForKey");
  const tessarin::PreferenceKey &entry = tessarin::key::kProtectedSettings;
  struct Case {
    const char *what;
    id stored;  // nil: no key
    NSString *item;
    BOOL on;
    id expected;  // nil: still no key
  };
  const Case cases[] = {
      {"on into nothing", nil, @"com.apple.Wi-Fi", YES, @[ @"com.apple.Wi-Fi" ]},
      {"on appends", @[ @"BLUETOOTH" ], @"Wi-Fi", YES, @[ @"BLUETOOTH", @"Wi-Fi" ]},
      {"on when present leaves the key as stored", @[ @"Wi-Fi", @"Wi-Fi" ], @"Wi-Fi", YES, @[ @"Wi-Fi", @"Wi-Fi" ]},
      {"on when present stores nothing where there was junk", @[ @"Wi-Fi", @(3) ], @"Wi-Fi", YES, @[ @"Wi-Fi", @(3) ]},
      {"off removes every copy", @[ @"Wi-Fi", @"BLUETOOTH", @"Wi-Fi" ], @"Wi-Fi", NO, @[ @"BLUETOOTH" ]},
      {"off from nothing stores an empty list", nil, @"Wi-Fi", NO, @[]},
      {"off of a wrong-typed value stores a list", @"Wi-Fi", @"Wi-Fi", NO, @[]},
      {"off keeps what no page understands", @[ @(3), @"Wi-Fi",
                                                @{@"x" : @(1)} ],
       @"Wi-Fi", NO, @[ @(3),
                        @{@"x" : @(1)} ]},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    set(c.stored, entry.name());
    const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
    flip(c.item, c.on, &entry);
    EXPECT_NSEQ([StoredPreferences() objectForKey:@(entry.name())], c.expected);
    EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification), posts + 1);
    EXPECT_EQ(contains(c.item, &entry), c.on);
  }
  // A row with nothing to switch (no identifier, no name): the list is stored as it
  // was and the change posted, as for an item that is never there.
  for (id item : { (id) nil, (id) @(5) }) {
    set(@[ @"Wi-Fi" ], entry.name());
    const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
    flip(item, YES, &entry);
    EXPECT_NSEQ([StoredPreferences() objectForKey:@(entry.name())], @[ @"Wi-Fi" ]);
    EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification), posts + 1);
    EXPECT_FALSE(contains(item, &entry));
  }
}
