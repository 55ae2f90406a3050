// What a page's action did to the product's domain, judged against the key table:
// which stored keys changed and how often the change signal was posted.
#pragma once

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <gtest/gtest.h>

#include <string>

#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"

// Taken just before the action, with the domain as stored on disk.
class DomainWrite {
 public:
  explicit DomainWrite(NSDictionary *stored)
      : before_([stored copy]), posts_(SimNotifyPostCount(tessarin::kPrefsChangedNotification)) {}
  ~DomainWrite() { [before_ release]; }
  DomainWrite(const DomainWrite &) = delete;
  DomainWrite &operator=(const DomainWrite &) = delete;

  // The action stored `value` under the entry's key (nil: removed it), changed no
  // other key, and posted the change signal once when the table announces writes of
  // the key, and never otherwise.
  ::testing::AssertionResult Wrote(NSDictionary *after, const tessarin::PreferenceKey &entry, id value) const {
    NSString *key = [[[NSString alloc] initWithBytes:entry.key.data()
                                              length:entry.key.size()
                                            encoding:NSUTF8StringEncoding] autorelease];
    NSMutableSet *changed = [NSMutableSet set];
    NSMutableSet *keys = [NSMutableSet setWithArray:[before_ allKeys]];
    [keys addObjectsFromArray:[after allKeys]];
    for (NSString *k in keys)
      if (!same([before_ objectForKey:k], [after objectForKey:k])) [changed addObject:k];
    const unsigned posted = SimNotifyPostCount(tessarin::kPrefsChangedNotification) - posts_;
    const unsigned expected = tessarin::postsChangeSignal(entry) ? 1 : 0;

    std::string problems;
    if (![changed isEqualToSet:[NSSet setWithObject:key]])
      problems += "changed keys " + describe([changed allObjects]) + ", not only \"" + std::string(entry.key) + "\"; ";
    if (!same([after objectForKey:key], value))
      problems += "stored " + describe([after objectForKey:key]) + ", not " + describe(value) + "; ";
    if (posted != expected)
      problems +=
          "change signal posted " + std::to_string(posted) + " times, the table says " + std::to_string(expected);
    if (problems.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << problems;
  }

 private:
  static bool same(id a, id b) { return a == b || (a != nil && [a isEqual:b]); }
  static std::string describe(id object) {
    return object == nil ? std::string("nothing") : std::string([[object description] UTF8String]);
  }

  NSDictionary *before_;
  unsigned posts_;
};
