// The maker's addresses the bundle hands to the system: the catalogue page the credits
// row opens and the support address crash-log mails go to.
#pragma once
#import <Foundation/Foundation.h>

NSString *const kCatalogueURL = @"https://corvane.example/apps";
NSString *const kSupportAddress = @"support@corvane.example";
