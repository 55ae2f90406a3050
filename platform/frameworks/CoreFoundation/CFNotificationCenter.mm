// The Darwin notification centre: CF observers over notify registrations delivered on the
// main run loop; posting is notify_post.

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>

#include <pthread.h>

#include <vector>

struct __CFNotificationCenter {
  int kind;
};

static struct __CFNotificationCenter gDarwinCenter = {1};

namespace {
struct Observer {
  const void *observer;
  NSString *name;  // retained
  int token;
};
pthread_mutex_t gObserversLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
std::vector<Observer> *gObservers;

std::vector<Observer> &observers() {
  if (!gObservers) gObservers = new std::vector<Observer>();
  return *gObservers;
}
}  // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) { return &gDarwinCenter; }

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callBack, CFStringRef name, const void *object,
                                     CFNotificationSuspensionBehavior suspensionBehavior) {
  NSString *nsName = (NSString *)name;
  if (center != &gDarwinCenter || callBack == NULL || ![nsName isKindOfClass:[NSString class]]) return;
  NSString *kept = [nsName copy];
  int token = NOTIFY_TOKEN_INVALID;
  uint32_t status = notify_register_dispatch([kept UTF8String], &token, dispatch_get_main_queue(), ^(int t) {
    // The Darwin centre carries neither object nor userInfo.
    callBack(&gDarwinCenter, (void *)observer, (CFStringRef)kept, NULL, NULL);
  });
  if (status != NOTIFY_STATUS_OK) {
    [kept release];
    return;
  }
  pthread_mutex_lock(&gObserversLock);
  observers().push_back(Observer{observer, kept, token});
  pthread_mutex_unlock(&gObserversLock);
}

static void removeMatching(const void *observer, NSString *name) {
  pthread_mutex_lock(&gObserversLock);
  std::vector<Observer> &list = observers();
  for (size_t i = 0; i < list.size();) {
    if (list[i].observer == observer && (name == nil || [list[i].name isEqualToString:name])) {
      notify_cancel(list[i].token);
      [list[i].name release];
      list.erase(list.begin() + (long)i);
    } else {
      i++;
    }
  }
  pthread_mutex_unlock(&gObserversLock);
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer, CFStringRef name,
                                        const void *object) {
  if (center != &gDarwinCenter) return;
  removeMatching(observer, (NSString *)name);
}

void CFNotificationCenterRemoveEveryObserver(CFNotificationCenterRef center, const void *observer) {
  if (center != &gDarwinCenter) return;
  removeMatching(observer, nil);
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFStringRef name, const void *object,
                                          CFDictionaryRef userInfo, Boolean deliverImmediately) {
  NSString *nsName = (NSString *)name;
  if (center != &gDarwinCenter || ![nsName isKindOfClass:[NSString class]]) return;
  notify_post([nsName UTF8String]);
}
