// Files every device has from the system: the Accessibility settings bundle with the
// Guided Access passcode prompts that settings pages borrow.
#import <Foundation/Foundation.h>
#include <Simulator/SimSystemFiles.h>
#import "Simulator/SimInternal.h"

namespace {

struct SystemFile {
  const char *path;      // device path
  const char *contents;  // UTF-8 text
};

constexpr SystemFile kSystemFiles[] = {
    {"/System/Library/PreferenceBundles/AccessibilitySettings.bundle/Info.plist",
     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
     "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
     "<plist version=\"1.0\">\n<dict>\n"
     "\t<key>CFBundleIdentifier</key>\n\t<string>com.apple.AccessibilitySettings</string>\n"
     "\t<key>CFBundleName</key>\n\t<string>AccessibilitySettings</string>\n"
     "\t<key>CFBundleDevelopmentRegion</key>\n\t<string>English</string>\n"
     "</dict>\n</plist>\n"},
    {"/System/Library/PreferenceBundles/AccessibilitySettings.bundle/en.lproj/GuidedAccessSettings.strings",
     "/* Guided Access */\n"
     "\"PMENTER\" = \"Enter Passcode\";\n"
     "\"PMENTER_1_PROMPT\" = \"Enter your passcode\";\n"
     "\"PMENTER_2_PROMPT\" = \"Re-enter your passcode\";\n"
     "\"PMSET\" = \"Set Passcode\";\n"},
};

}  // namespace

extern "C" int SimInstallSystemFiles(const char *root) {
  if (root == NULL || root[0] != '/') return -1;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *rootPath = [NSString stringWithUTF8String:root];
  int result = 0;
  for (const SystemFile &file : kSystemFiles) {
    NSString *hostPath = [rootPath stringByAppendingString:[NSString stringWithUTF8String:file.path]];
    NSData *data = [NSData dataWithBytes:file.contents length:strlen(file.contents)];
    if (!SimMakeDirectories([hostPath stringByDeletingLastPathComponent]) || ![data writeToFile:hostPath
                                                                                     atomically:YES]) {
      result = -1;
    }
  }
  [pool release];
  return result;
}
