// Messages to SpringBoard. In Settings the messaging centre's own channel does not
// reach SpringBoard, so for the product's centre both send methods are replaced by
// a transport of a Darwin notification, its state and two files under /tmp.
#pragma once
#import <Foundation/Foundation.h>

// Replaces the centre's two send methods (keeping the platform's for other centres).
void installMessageTransport(void);
// Registers the transport signal's notify token; the last step of start-up.
void registerTransportSignal(void);
