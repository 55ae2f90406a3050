/*
 * Named messaging centres. A server registers handlers for message names; clients send
 * one-way messages or messages that wait for a reply dictionary. Here a centre's server is
 * reachable only from the process it runs in.
 */
#import <Foundation/Foundation.h>

@interface CPDistributedMessagingCenter : NSObject {
  NSString *_centerName;
  NSMutableDictionary *_handlers;
  BOOL _serverRunning;
}

+ (instancetype)centerNamed:(NSString *)name;
- (NSString *)name;

/* Handlers: - (NSDictionary *)handle:(NSString *)name userInfo:(NSDictionary *)userInfo */
- (void)registerForMessageName:(NSString *)messageName target:(id)target selector:(SEL)selector;
- (void)unregisterForMessageName:(NSString *)messageName;
- (void)runServerOnCurrentThread;
- (void)stopServer;

/* NO (one-way) or nil (reply) when no server of this name runs in this process. */
- (BOOL)sendMessageName:(NSString *)messageName userInfo:(NSDictionary *)userInfo;
- (NSDictionary *)sendMessageAndReceiveReplyName:(NSString *)messageName userInfo:(NSDictionary *)userInfo;
- (NSDictionary *)sendMessageAndReceiveReplyName:(NSString *)messageName
                                        userInfo:(NSDictionary *)userInfo
                                           error:(NSError **)error;
@end
