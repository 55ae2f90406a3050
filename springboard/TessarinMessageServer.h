// SpringBoard's end of the settings bundle's message transport: it watches the
// transport signal, reads which message was sent from the signal's state, hands
// the message to a handler and writes the handler's reply where the bundle polls.
#pragma once
#import <Foundation/Foundation.h>

// Answers one message. `userInfo` is the request file's dictionary, or nil. The
// result is the reply of a request/reply message (nil: no reply); for one-way
// messages it is ignored.
typedef NSDictionary * (^TessarinMessageHandler)(NSString *identifier, NSDictionary *userInfo);

// The reply as the keyed archive written to the reply file.
NSData *archivedReply(NSDictionary *reply);

@interface TessarinMessageServer : NSObject {
  TessarinMessageHandler _handler;
  int _token;
  BOOL _running;
}

@property (nonatomic, readonly, getter=isRunning) BOOL running;

- (instancetype)initWithHandler:(TessarinMessageHandler)handler;

// Starts observing the transport signal on the main run loop.
- (void)start;
- (void)stop;

// Handles the message whose code is the signal's current state (called on each signal).
- (void)handleSignal;

@end
