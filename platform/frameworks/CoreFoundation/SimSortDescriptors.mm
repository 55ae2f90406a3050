// Sorting with sort descriptors as iOS does it: a nil key value orders before every
// other value (GNUstep raises "compare with nil"), and the sort is stable, so equal
// elements keep their order (GNUstep's may not).
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <vector>

namespace {

NSComparisonResult compareValues(NSSortDescriptor *descriptor, id va, id vb) {
  NSComparisonResult result;
  if (va == nil && vb == nil) {
    result = NSOrderedSame;
  } else if (va == nil) {
    result = NSOrderedAscending;
  } else if (vb == nil) {
    result = NSOrderedDescending;
  } else {
    SEL selector = [descriptor selector];
    if (selector == NULL) selector = @selector(compare:);
    typedef NSComparisonResult (*Compare)(id, SEL, id);
    IMP imp = [va methodForSelector:selector];
    result = imp ? ((Compare)imp)(va, selector, vb) : NSOrderedSame;
  }
  if (![descriptor ascending]) result = (NSComparisonResult)-result;
  return result;
}

id sortValue(NSSortDescriptor *descriptor, id item) {
  NSString *key = [descriptor key];
  return key ? [item valueForKeyPath:key] : item;
}

NSComparisonResult simCompareObject(id self, SEL _cmd, id a, id b) {
  return compareValues(self, sortValue(self, a), sortValue(self, b));
}

// A stable merge sort of the array's elements. Each element's value for each descriptor is
// read once, before sorting, rather than at every comparison.
void stableSort(std::vector<id> &items, NSArray *descriptors) {
  const size_t count = items.size();
  std::vector<NSSortDescriptor *> sorts;
  std::vector<std::vector<id>> values;
  for (NSSortDescriptor *d in descriptors) {
    sorts.push_back(d);
    std::vector<id> column(count);
    for (size_t i = 0; i < count; i++) column[i] = [sortValue(d, items[i]) retain];
    values.push_back(std::move(column));
  }
  auto before = [&](size_t a, size_t b) {
    for (size_t d = 0; d < sorts.size(); d++) {
      NSComparisonResult r = compareValues(sorts[d], values[d][a], values[d][b]);
      if (r != NSOrderedSame) return r == NSOrderedAscending;
    }
    return false;
  };
  std::vector<size_t> order(count), scratch(count);
  for (size_t i = 0; i < count; i++) order[i] = i;
  for (size_t width = 1; width < count; width *= 2) {
    for (size_t lo = 0; lo < count; lo += 2 * width) {
      size_t mid = std::min(lo + width, count), hi = std::min(lo + 2 * width, count);
      size_t i = lo, j = mid, k = lo;
      while (i < mid && j < hi) scratch[k++] = before(order[j], order[i]) ? order[j++] : order[i++];
      while (i < mid) scratch[k++] = order[i++];
      while (j < hi) scratch[k++] = order[j++];
    }
    order.swap(scratch);
  }
  std::vector<id> sorted(count);
  for (size_t i = 0; i < count; i++) sorted[i] = items[order[i]];
  items.swap(sorted);
  for (const std::vector<id> &column : values)
    for (id value : column) [value release];
}

void simSortUsingDescriptors(NSMutableArray *self, SEL _cmd, NSArray *descriptors) {
  const NSUInteger count = [self count];
  if (count < 2 || [descriptors count] == 0) return;
  std::vector<id> items(count);
  for (NSUInteger i = 0; i < count; i++) items[i] = [[self objectAtIndex:i] retain];
  stableSort(items, descriptors);
  NSArray *sorted = [[NSArray alloc] initWithObjects:items.data() count:count];
  [self setArray:sorted];
  [sorted release];
  for (id item : items) [item release];
}

NSArray *simSortedArrayUsingDescriptors(NSArray *self, SEL _cmd, NSArray *descriptors) {
  NSMutableArray *copy = [NSMutableArray arrayWithArray:self];
  simSortUsingDescriptors(copy, _cmd, descriptors);
  return [NSArray arrayWithArray:copy];
}

void replace(Class cls, SEL sel, IMP imp) {
  Method m = cls ? class_getInstanceMethod(cls, sel) : NULL;
  if (m != NULL) class_replaceMethod(cls, sel, imp, method_getTypeEncoding(m));
}

// Runs from +load, before this module's own selectors and string constants may be
// fixed up: names are looked up through the runtime's C functions only.
void installSortDescriptors(void) {
  Class descriptor = (Class)objc_getClass("NSSortDescriptor");
  Class array = (Class)objc_getClass("NSArray");
  Class mutableArray = (Class)objc_getClass("NSMutableArray");
  SEL sortUsing = sel_registerName("sortUsingDescriptors:");
  replace(descriptor, sel_registerName("compareObject:toObject:"), (IMP)simCompareObject);
  replace(array, sel_registerName("sortedArrayUsingDescriptors:"), (IMP)simSortedArrayUsingDescriptors);
  replace(mutableArray, sortUsing, (IMP)simSortUsingDescriptors);
  Class concrete = (Class)objc_getClass("GSMutableArray");
  if (concrete && class_getMethodImplementation(concrete, sortUsing) != (IMP)simSortUsingDescriptors)
    replace(concrete, sortUsing, (IMP)simSortUsingDescriptors);
}

}  // namespace

// Installed when the platform library loads, before any sorting code runs.
@interface SimSortDescriptorsLoader : NSObject
@end

@implementation SimSortDescriptorsLoader
+ (void)load {
  installSortDescriptors();
}
@end
