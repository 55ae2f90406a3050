// The simulated Settings app's command line: makes a device from a profile, installs the
// package, starts SpringBoard, loads the bundle, opens the product's settings and lets a
// person (or a script) use them.
//   tessarin-settings [--profile NAME] [--language CODE] [--script FILE|-] [--messages] [--no-springboard]
//                     [--keep-device] [--screenshot-dir DIR]
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>
#import "MessageProbe.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"
#import "SettingsPictures.h"

static volatile pid_t gSpringBoard = -1;
static char gDeviceRoot[4096];
static bool gKeepDevice = false;

static void stopSpringBoard(void) {
  pid_t pid = gSpringBoard;
  gSpringBoard = -1;
  if (pid > 0) SimSpringBoardStop(pid);
}

static void cleanUp(void) {
  stopSpringBoard();
  if (!gKeepDevice && gDeviceRoot[0] != '\0') {
    SimDeviceRemove(gDeviceRoot);
    gDeviceRoot[0] = '\0';
  }
}

static void onSignal(int signo) {
  pid_t pid = gSpringBoard;
  if (pid > 0) kill(pid, SIGTERM);
  if (signo == SIGINT || signo == SIGTERM || signo == SIGHUP) _exit(128 + signo);
  // A crash: SpringBoard is stopped, then the signal does what it would have done.
  signal(signo, SIG_DFL);
  raise(signo);
}

static void usage(FILE *out) {
  fprintf(
      out,
      "usage: tessarin-settings [--profile NAME] [--language CODE] [--script FILE|-] [--messages] [--no-springboard]\n"
      "                         [--keep-device] [--screenshot-dir DIR]\n"
      "  --profile NAME    device profile (default %s)\n"
      "  --language CODE   the user's language first (de, ja, ar, pt-BR, zh-Hans...), as chosen in Settings\n"
      "  --script FILE     run the commands of FILE ('-': standard input) instead of asking\n"
      "  --messages        send the bundle's messages to SpringBoard and print the replies\n"
      "  --no-springboard  do not start the simulated SpringBoard\n"
      "  --keep-device     leave the device tree in place at exit\n"
      "  --screenshot-dir DIR  write a picture of the screen into DIR after every command\n\n%s",
      SIM_DEFAULT_PROFILE, [[SettingsConsole helpText] UTF8String]);
}

static void emit(NSString *text) {
  if ([text length] == 0) return;
  fputs([text UTF8String], stdout);
  if (![text hasSuffix:@"\n"]) fputc('\n', stdout);
  fflush(stdout);
}

static NSString *gScreenshotDir = nil;
static unsigned gScreenshots = 0;

// With --screenshot-dir: the screen after the command, as DIR/NNN-command.png.
static void screenshotAfter(NSString *command) {
  if (gScreenshotDir == nil) return;
  NSMutableString *name = [NSMutableString string];
  for (NSUInteger i = 0; i < [command length] && [name length] < 40; i++) {
    unichar c = [command characterAtIndex:i];
    bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (plain)
      [name appendFormat:@"%C", c];
    else if ([name length] > 0 && ![name hasSuffix:@"-"])
      [name appendString:@"-"];
  }
  while ([name hasSuffix:@"-"]) [name deleteCharactersInRange:NSMakeRange([name length] - 1, 1)];
  NSString *file = [NSString stringWithFormat:@"%03u%@%@.png", gScreenshots++, [name length] > 0 ? @"-" : @"", name];
  NSString *failure = SettingsWriteScreenshot([gScreenshotDir stringByAppendingPathComponent:file], NO, 0);
  if (failure != nil) fprintf(stderr, "tessarin-settings: %s\n", [failure UTF8String]);
}

// Reads commands line by line; echoes each one when not typed at a terminal.
static int runCommands(SettingsConsole *console, FILE *input, bool echo, bool prompt) {
  char line[1024];
  while (![console finished]) {
    if (prompt) {
      fputs("tessarin> ", stdout);
      fflush(stdout);
    }
    if (fgets(line, sizeof line, input) == NULL) break;
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    NSString *command = [[NSString stringWithUTF8String:line]
        stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceAndNewlineCharacterSet]];
    if (command == nil) command = @"";
    if (echo && [command length] > 0 && ![command hasPrefix:@"#"]) {
      printf("\n> %s\n", [command UTF8String]);
    }
    emit([console perform:command]);
    if ([command length] > 0 && ![command hasPrefix:@"#"] && ![console finished]) screenshotAfter(command);
    [pool release];
  }
  if (prompt && ![console finished]) fputc('\n', stdout);
  return 0;
}

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  const char *profile = SIM_DEFAULT_PROFILE;
  const char *script = NULL;
  const char *language = NULL;
  bool messages = false;
  bool springBoard = true;
  for (int i = 1; i < argc; i++) {
    if (strcmp(argv[i], "--profile") == 0 && i + 1 < argc) {
      profile = argv[++i];
    } else if (strcmp(argv[i], "--language") == 0 && i + 1 < argc) {
      language = argv[++i];
    } else if (strcmp(argv[i], "--script") == 0 && i + 1 < argc) {
      script = argv[++i];
    } else if (strcmp(argv[i], "--messages") == 0) {
      messages = true;
    } else if (strcmp(argv[i], "--no-springboard") == 0) {
      springBoard = false;
    } else if (strcmp(argv[i], "--screenshot-dir") == 0 && i + 1 < argc) {
      gScreenshotDir = [[NSString alloc] initWithUTF8String:argv[++i]];
    } else if (strcmp(argv[i], "--keep-device") == 0) {
      gKeepDevice = true;
    } else if (strcmp(argv[i], "--help") == 0 || strcmp(argv[i], "-h") == 0) {
      usage(stdout);
      return 0;
    } else if (argv[i][0] != '-') {
      profile = argv[i];
    } else {
      usage(stderr);
      return 2;
    }
  }
  FILE *input = stdin;
  if (script != NULL && strcmp(script, "-") != 0) {
    input = fopen(script, "r");
    if (input == NULL) {
      fprintf(stderr, "tessarin-settings: cannot read the script '%s'\n", script);
      return 2;
    }
  }

  atexit(cleanUp);
  signal(SIGINT, onSignal);
  signal(SIGTERM, onSignal);
  signal(SIGHUP, onSignal);
  signal(SIGSEGV, onSignal);
  signal(SIGBUS, onSignal);
  signal(SIGABRT, onSignal);

  const char *root = SimDeviceCreateTemporary(profile);
  if (root == NULL) {
    fprintf(stderr, "tessarin-settings: cannot create a device from profile '%s'\n", profile);
    return 1;
  }
  snprintf(gDeviceRoot, sizeof gDeviceRoot, "%s", root);
  if (language != NULL && SimDeviceChooseLanguage(language) != 0) {
    fprintf(stderr, "tessarin-settings: cannot choose the language '%s'\n", language);
    return 2;
  }
  NSString *profileName = [SimDeviceProfile() objectForKey:@"name"];
  printf("Device: %s%s%s%s\n", profile, profileName != nil ? " (" : "",
         profileName != nil ? [profileName UTF8String] : "", profileName != nil ? ")" : "");
  NSArray *languages = SimUserLanguages();
  printf("Languages: %s\n", [[languages componentsJoinedByString:@", "] UTF8String]);
  if (gKeepDevice) printf("Device tree: %s\n", root);
  if (!SettingsHostInstallPackage()) {
    fprintf(stderr, "tessarin-settings: cannot install the package into the device\n");
    return 1;
  }
  gSpringBoard = springBoard ? SettingsHostStartSpringBoard() : -1;
  printf("SpringBoard: %s\n", gSpringBoard > 0 ? "running" : "not running");
  fflush(stdout);
  NSBundle *bundle = SettingsHostLoadPreferenceBundle();
  if (bundle == nil) {
    fprintf(stderr, "tessarin-settings: the preference bundle did not load\n");
    return 1;
  }
  if (messages) {
    int status = runMessageProbe();
    [pool drain];
    return status;
  }

  if (!SettingsHostBuildSettingsApp(bundle)) {
    fprintf(stderr, "tessarin-settings: the Settings app could not be built around the bundle\n");
    return 1;
  }
  SettingsConsole *console = [[[SettingsConsole alloc] init] autorelease];
  NSString *label = [SettingsHostPreferenceEntry() objectForKey:@"label"];
  if (![label isKindOfClass:[NSString class]] || ![console openEntryNamed:label]) {
    fprintf(stderr, "tessarin-settings: the product's entry is not in the Settings list\n");
    emit([console render]);
    return 1;
  }
  emit([console render]);
  if (gScreenshotDir != nil) {
    [[NSFileManager defaultManager] createDirectoryAtPath:gScreenshotDir
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:NULL];
    screenshotAfter(@"start");
  }

  bool interactive = script == NULL && isatty(fileno(stdin));
  if (interactive) printf("Type a command (help lists them).\n");
  int status = runCommands(console, input, !interactive, interactive);
  if (input != stdin) fclose(input);
  [pool drain];
  return status;
}
