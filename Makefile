# iOS build of the TessarinPrefs preference bundle (Theos).
#
#   make package                                  rootful .deb (iphoneos-arm, installs under /)
#   make package THEOS_PACKAGE_SCHEME=rootless    rootless .deb (iphoneos-arm64, installs under /var/jb)
#   make package FINALPACKAGE=1 ...               release build (optimised, no debug build number)
#
# Theos moves the install paths under /var/jb and rewrites the control file's
# Architecture to iphoneos-arm64 by itself for the rootless scheme; nothing in this
# file depends on the scheme, because the bundle finds the jail root at run time
# (libroot). The Linux build (CMake) is separate: platform/, springboard/, tests/ and
# bench/ never reach this build, only the product sources under prefs/ do.

TARGET := iphone:clang:latest:12.0
ARCHS = arm64 arm64e
INSTALL_TARGET_PROCESSES = Preferences

include $(THEOS)/makefiles/common.mk

BUNDLE_NAME = TessarinPrefs

# Every Objective-C++ and C++ source of the bundle. Product files that only make
# sense in the Linux build go under a directory named "linux" and are left out here.
# The start-up constructor links last, as in the CMake build.
TESSARIN_SOURCES := $(sort $(shell find prefs \( -name '*.mm' -o -name '*.cpp' \) -type f))
TESSARIN_STARTUP := $(wildcard prefs/core/StartupAtLoad.mm)
# (filter-out cannot do this: only the first % of a pattern is a wildcard.)
TESSARIN_DEVICE_SOURCES := $(foreach f,$(TESSARIN_SOURCES),$(if $(findstring /linux/,$(f)),,$(f)))
TessarinPrefs_FILES = $(filter-out $(TESSARIN_STARTUP),$(TESSARIN_DEVICE_SOURCES)) $(TESSARIN_STARTUP)

TessarinPrefs_INSTALL_PATH = /Library/PreferenceBundles
TessarinPrefs_RESOURCE_DIRS = resources

# Manual reference counting, as in the Linux build. The include paths mirror the
# CMake targets ("core/Names.hpp" resolves against prefs/). Theos builds with -Wall
# -Werror: a call deprecated at the iOS 12 deployment target fails the build like any
# other warning (calls deprecated only later, such as beginIgnoringInteractionEvents in
# iOS 13, do not warn at this target).
TessarinPrefs_CFLAGS = -fno-objc-arc \
	-I$(THEOS_PROJECT_DIR)/prefs -I$(THEOS_PROJECT_DIR) \
	-DTESSARIN_SIMULATED=0
# Theos hands _CCFLAGS to C++ and Objective-C++ sources alike.
TessarinPrefs_CCFLAGS = -std=c++17

TessarinPrefs_FRAMEWORKS = UIKit CoreGraphics QuartzCore MessageUI IOKit
TessarinPrefs_PRIVATE_FRAMEWORKS = Preferences
TessarinPrefs_LIBRARIES = substrate root

# Classes of frameworks the bundle does not link (they are private, move between
# system versions, or belong to add-ons that may be missing). The bundle asks for
# them by name at run time; their declarations in prefs/core/ios/PrivateFrameworks.h
# are weak imports. Should code still name one of them directly, the linker leaves
# that reference to dyld (flat lookup, nil when the class is absent) instead of failing.
TESSARIN_RUNTIME_CLASSES = CPDistributedMessagingCenter MCPasscodeManager PKGlyphView FSSwitchPanel
TessarinPrefs_LDFLAGS += $(foreach class,$(TESSARIN_RUNTIME_CLASSES),'-Wl,-U,_OBJC_CLASS_$$_$(class)')

include $(THEOS_MAKE_PATH)/bundle.mk
