#!/usr/bin/env bash
# Syntax-checks every product .mm as the device build compiles it (TESSARIN_SIMULATED=0):
# private frameworks come only from prefs/core/ios/, never from the Linux stand-ins. The
# UIKit, CoreFoundation, substrate, libroot, notify and dispatch stand-ins stand in for the
# SDK and Theos; IOKit is hidden so the header-less SDK case is checked. Catches code that
# compiles on Linux only because a stand-in header declares more than the device build does.
set -u
top=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
inc=$work/include; mkdir -p "$inc/mach" "$inc/MessageUI"
for f in "$top"/platform/include/*; do
  case $(basename "$f") in Preferences|PreferencesUI|AppSupport|ManagedConfiguration|PassKit|IOKit|Simulator) ;;
    *) ln -s "$f" "$inc/$(basename "$f")";; esac
done
printf 'typedef unsigned int mach_port_t;\ntypedef int kern_return_t;\n' > "$inc/mach/mach.h"
cat > "$inc/MessageUI/MessageUI.h" <<'H'
#import <UIKit/UIKit.h>
typedef NS_ENUM(NSInteger, MFMailComposeResult) { MFMailComposeResultCancelled, MFMailComposeResultSaved, MFMailComposeResultSent, MFMailComposeResultFailed };
@class MFMailComposeViewController;
@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController *)controller didFinishWithResult:(MFMailComposeResult)result error:(NSError *)error;
@end
@interface MFMailComposeViewController : UINavigationController
+ (BOOL)canSendMail;
@property (nonatomic, assign) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;
- (void)setSubject:(NSString *)subject;
- (void)setToRecipients:(NSArray *)toRecipients;
- (void)setMessageBody:(NSString *)body isHTML:(BOOL)isHTML;
@end
H
gcc_objc=$(ls -d /usr/lib/gcc/*-linux-gnu/*/include | tail -1)
status=0
cd "$top"
for f in $(find prefs -name '*.mm' | sort); do
  out=$(clang++ -std=c++17 -fsyntax-only -x objective-c++ -fobjc-runtime=gcc -fblocks -fexceptions -fobjc-exceptions \
    -fconstant-string-class=NSConstantString -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 -D_NATIVE_OBJC_EXCEPTIONS \
    -DTESSARIN_SIMULATED=0 -DCF_RETURNS_RETAINED= -DCF_RELEASES_ARGUMENT= -Wall -Wno-unused-parameter \
    -Iprefs -I. -isystem "$inc" -isystem /usr/include/GNUstep -idirafter "$gcc_objc" "$f" 2>&1)
  if echo "$out" | grep -q -E 'error|warning'; then echo "$out"; status=1; fi
done
[ $status = 0 ] && echo "device-build check: $(find prefs -name '*.mm' | wc -l) sources clean"
exit $status
