// Messaging centres within one process: a send reaches the handler of the server of the
// same name running here, if any.

#import <AppSupport/CPDistributedMessagingCenter.h>

#include <pthread.h>

// A registered handler: target and selector.
@interface SimMessageHandler : NSObject {
  id _target;
  SEL _selector;
}
@property (nonatomic, assign) id target;
@property (nonatomic, assign) SEL selector;
@end

@implementation SimMessageHandler
@synthesize target = _target;
@synthesize selector = _selector;
@end

static pthread_mutex_t gCentersLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
static NSMutableDictionary *gServers;  // name -> running server centre (not retained twice)

@interface CPDistributedMessagingCenter ()
@property (nonatomic, copy) NSString *centerName;
@property (nonatomic, retain) NSMutableDictionary *handlers;
@property (nonatomic, assign) BOOL serverRunning;
@end

@implementation CPDistributedMessagingCenter
@synthesize centerName = _centerName;
@synthesize handlers = _handlers;
@synthesize serverRunning = _serverRunning;

+ (instancetype)centerNamed:(NSString *)name {
  CPDistributedMessagingCenter *center = [[[self alloc] init] autorelease];
  [center setCenterName:name];
  return center;
}

- (instancetype)init {
  if ((self = [super init])) _handlers = [[NSMutableDictionary alloc] init];
  return self;
}

- (void)dealloc {
  [_centerName release];
  [_handlers release];
  [super dealloc];
}

- (NSString *)name {
  return _centerName;
}

- (void)registerForMessageName:(NSString *)messageName target:(id)target selector:(SEL)selector {
  if (messageName == nil) return;
  SimMessageHandler *handler = [[[SimMessageHandler alloc] init] autorelease];
  [handler setTarget:target];
  [handler setSelector:selector];
  pthread_mutex_lock(&gCentersLock);
  [_handlers setObject:handler forKey:messageName];
  pthread_mutex_unlock(&gCentersLock);
}

- (void)unregisterForMessageName:(NSString *)messageName {
  if (messageName == nil) return;
  pthread_mutex_lock(&gCentersLock);
  [_handlers removeObjectForKey:messageName];
  pthread_mutex_unlock(&gCentersLock);
}

- (void)runServerOnCurrentThread {
  if (_centerName == nil) return;
  pthread_mutex_lock(&gCentersLock);
  if (gServers == nil) gServers = [[NSMutableDictionary alloc] init];
  [gServers setObject:self forKey:_centerName];
  _serverRunning = YES;
  pthread_mutex_unlock(&gCentersLock);
}

- (void)stopServer {
  pthread_mutex_lock(&gCentersLock);
  if (_serverRunning && _centerName && [gServers objectForKey:_centerName] == self)
    [gServers removeObjectForKey:_centerName];
  _serverRunning = NO;
  pthread_mutex_unlock(&gCentersLock);
}

// The running server's handler for a message, or nil; *found tells whether a server runs.
- (SimMessageHandler *)handlerForMessage:(NSString *)messageName serverFound:(BOOL *)found {
  pthread_mutex_lock(&gCentersLock);
  CPDistributedMessagingCenter *server = _centerName ? [[[gServers objectForKey:_centerName] retain] autorelease] : nil;
  SimMessageHandler *handler = messageName ? [[[[server handlers] objectForKey:messageName] retain] autorelease] : nil;
  pthread_mutex_unlock(&gCentersLock);
  *found = server != nil;
  return handler;
}

static id callHandler(SimMessageHandler *handler, NSString *messageName, NSDictionary *userInfo) {
  id target = [handler target];
  SEL selector = [handler selector];
  if (target == nil || selector == NULL || ![target respondsToSelector:selector]) return nil;
  return [target performSelector:selector withObject:messageName withObject:userInfo];
}

- (BOOL)sendMessageName:(NSString *)messageName userInfo:(NSDictionary *)userInfo {
  BOOL found = NO;
  SimMessageHandler *handler = [self handlerForMessage:messageName serverFound:&found];
  if (!found) return NO;
  callHandler(handler, messageName, userInfo);
  return YES;
}

- (NSDictionary *)sendMessageAndReceiveReplyName:(NSString *)messageName userInfo:(NSDictionary *)userInfo {
  BOOL found = NO;
  SimMessageHandler *handler = [self handlerForMessage:messageName serverFound:&found];
  if (!found || handler == nil) return nil;
  id reply = callHandler(handler, messageName, userInfo);
  return [reply isKindOfClass:[NSDictionary class]] ? reply : nil;
}

- (NSDictionary *)sendMessageAndReceiveReplyName:(NSString *)messageName
                                        userInfo:(NSDictionary *)userInfo
                                           error:(NSError **)error {
  NSDictionary *reply = [self sendMessageAndReceiveReplyName:messageName userInfo:userInfo];
  if (reply == nil && error)
    *error = [NSError errorWithDomain:@"CPDistributedMessagingCenterErrorDomain" code:-1 userInfo:nil];
  return reply;
}
@end
