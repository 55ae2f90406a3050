// Sorting with sort descriptors as iOS does it: a nil key value orders before every
// other value (GNUstep raises "compare with nil"), and the sort is stable, so equal
// elements keep their order (GNUstep's may not).
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <vector>

namespace {

NSComparisonResult compareWithDescriptor(NSSortDescriptor *descriptor, id a, id b)
{
    NSString *key = [descriptor key];
    id va = key ? [a valueForKeyPath:key] : a;
    id vb = key ? [b valueForKeyPath:key] : b;
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

NSComparisonResult compareWithDescriptors(NSArray *descriptors, id a, id b)
{
    for (NSSortDescriptor *d in descriptors) {
        NSComparisonResult r = compareWithDescriptor(d, a, b);
        if (r != NSOrderedSame) return r;
    }
    return NSOrderedSame;
}

NSComparisonResult simCompareObject(id self, SEL _cmd, id a, id b)
{
    return compareWithDescriptor(self, a, b);
}

// A stable merge sort of the array's elements.
void stableSort(std::vector<id> &items, NSArray *descriptors)
{
    std::vector<id> scratch(items.size());
    for (size_t width = 1; width < items.size(); width *= 2) {
        for (size_t lo = 0; lo < items.size(); lo += 2 * width) {
            size_t mid = std::min(lo + width, items.size()), hi = std::min(lo + 2 * width, items.size());
            size_t i = lo, j = mid, k = lo;
            while (i < mid && j < hi)
                scratch[k++] = compareWithDescriptors(descriptors, items[j], items[i]) == NSOrderedAscending
                                   ? items[j++]
                                   : items[i++];
            while (i < mid) scratch[k++] = items[i++];
            while (j < hi) scratch[k++] = items[j++];
        }
        items.swap(scratch);
    }
}

void simSortUsingDescriptors(NSMutableArray *self, SEL _cmd, NSArray *descriptors)
{
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

NSArray *simSortedArrayUsingDescriptors(NSArray *self, SEL _cmd, NSArray *descriptors)
{
    NSMutableArray *copy = [NSMutableArray arrayWithArray:self];
    simSortUsingDescriptors(copy, _cmd, descriptors);
    return [NSArray arrayWithArray:copy];
}

void replace(Class cls, SEL sel, IMP imp)
{
    Method m = cls ? class_getInstanceMethod(cls, sel) : NULL;
    if (m != NULL) class_replaceMethod(cls, sel, imp, method_getTypeEncoding(m));
}

// Runs from +load, before this module's own selectors and string constants may be
// fixed up: names are looked up through the runtime's C functions only.
void installSortDescriptors(void)
{
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
+ (void)load
{
    installSortDescriptors();
}
@end
