#import "logs/LogFiles.h"
#import "core/Paths.h"

namespace {

std::string fileSystemPath(const char *path) { return devicePath(path); }

}  // namespace

tessarin::logs::LogDirectory deviceLogDirectory(void) {
  return tessarin::logs::LogDirectory(fileSystemPath(std::string(tessarin::logs::kLogDirectory).c_str()),
                                      fileSystemPath);
}

std::string fileSystemName(id text) {
  const char *bytes = [text isKindOfClass:[NSString class]] ? [(NSString *)text fileSystemRepresentation] : NULL;
  return bytes != NULL ? std::string(bytes) : std::string();
}
